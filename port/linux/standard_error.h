// Lines on standard error from inside a host, whatever the host has made of it.
#ifndef KZM_PORT_LINUX_STANDARD_ERROR_H
#define KZM_PORT_LINUX_STANDARD_ERROR_H

#include <cerrno>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <pthread.h>
#include <string_view>
#include <unistd.h>

namespace kzm::port {

/// Keeps the calling thread from a SIGPIPE of its own making; one that the host was to get stays the host's.
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

/// Writes the line, its end included, in one piece, so that the lines of several programs do not mix. It is lost when
/// nobody reads, or does not read just now: the host's work never waits for it. A pipe takes up to 4096 bytes at once.
inline void tellStandardError(std::string_view line) noexcept {
  const WithoutSigpipe guard;
  pollfd output{STDERR_FILENO, POLLOUT, 0};
  if (::poll(&output, 1, 0) == 1 && (output.revents & POLLOUT) != 0) {
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
  }
}

}  // namespace kzm::port

#endif
