#include "port/standard_error.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <pthread.h>
#include <unistd.h>

namespace kzm::port {
namespace {

// Keeps the calling thread from a SIGPIPE of its own making; one that the host was to get stays the host's.
class WithoutSigpipe {
 public:
  WithoutSigpipe() {
    sigemptyset(&sigpipe_);
    sigaddset(&sigpipe_, SIGPIPE);
    sigset_t pending;
    sigpending(&pending);
    wasPending_ = sigismember(&pending, SIGPIPE) == 1;
    pthread_sigmask(SIG_BLOCK, &sigpipe_, &before_);
  }
  ~WithoutSigpipe() {
    constexpr timespec kNow{};
    if (!wasPending_) {
      while (sigtimedwait(&sigpipe_, nullptr, &kNow) < 0 && errno == EINTR) {
      }
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }
  WithoutSigpipe(const WithoutSigpipe&) = delete;
  WithoutSigpipe& operator=(const WithoutSigpipe&) = delete;

 private:
  sigset_t sigpipe_{};
  sigset_t before_{};
  bool wasPending_ = false;
};

}  // namespace

void writeToStandardError(std::string_view line) noexcept {
  const WithoutSigpipe guard;
  pollfd output{STDERR_FILENO, POLLOUT, 0};
  if (::poll(&output, 1, 0) == 1 && (output.revents & POLLOUT) != 0) {
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
  }
}

}  // namespace kzm::port
