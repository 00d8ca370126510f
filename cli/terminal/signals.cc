#include "cli/terminal/signals.h"

#include <cerrno>
#include <csignal>
#include <sys/signalfd.h>
#include <system_error>
#include <unistd.h>

namespace kzm::cli {
namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGWINCH, SIGTSTP};

sigset_t signalSet() {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : kSignals) sigaddset(&set, signal);
  return set;
}

}  // namespace

Signals::Signals() {
  const sigset_t set = signalSet();
  ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
  descriptor_ = port::Descriptor(::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
  if (!descriptor_.isOpen()) throw std::system_error(errno, std::generic_category(), "signals");
}

int Signals::take() const {
  signalfd_siginfo info{};
  const bool came = ::read(descriptor(), &info, sizeof info) == static_cast<ssize_t>(sizeof info);
  return came ? static_cast<int>(info.ssi_signo) : 0;
}

}  // namespace kzm::cli
