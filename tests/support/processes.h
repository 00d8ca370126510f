// What tests do with processes, past the library: they look up descriptors and children of this one, start one of their
// own, and wait for the end of another.
#ifndef KZM_TESTS_SUPPORT_PROCESSES_H
#define KZM_TESTS_SUPPORT_PROCESSES_H

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kzm::tests {

/// Asks for each descriptor that a test can have, as /proc, which lists them, is not everywhere.
inline std::ptrdiff_t openDescriptors() {
  constexpr int kMost = 4096;
  std::ptrdiff_t count = 0;
  for (int descriptor = 0; descriptor < kMost; ++descriptor) count += ::fcntl(descriptor, F_GETFD) >= 0 ? 1 : 0;
  return count;
}

/// What there is to know of a child, or of any one: nothing when there is none that runs or is not collected yet. One
/// that runs has the identifier 0.
inline std::optional<siginfo_t> lookAtChild(idtype_t which, int process) {
  siginfo_t info{};
  if (::waitid(which, static_cast<id_t>(process), &info, WEXITED | WNOHANG | WNOWAIT) != 0) return std::nullopt;
  return info;
}

/// Whether this process has any child, running or not yet collected.
inline bool hasChildren() { return lookAtChild(P_ALL, 0).has_value(); }

/// Whether it is a child of this process that runs or is not collected yet.
inline bool isChild(int process) { return lookAtChild(P_PID, process).has_value(); }

/// Whether it is a child of this process that has ended and is not collected yet.
inline bool isZombie(int process) {
  const std::optional<siginfo_t> info = lookAtChild(P_PID, process);
  return info && info->si_pid == process;
}

/// Waits until the process has ended, and leaves it to its parent to notice.
inline bool awaitEnd(int process) {
  constexpr int kPatienceMilliseconds = 20'000;
  const int descriptor = static_cast<int>(::syscall(SYS_pidfd_open, process, 0));
  if (descriptor < 0) return errno == ESRCH;
  pollfd entry{descriptor, POLLIN, 0};
  const int ready = ::poll(&entry, 1, kPatienceMilliseconds);
  ::close(descriptor);
  return ready == 1;
}

/// Runs the body in a process that is forked off this one: its exit code, or minus the signal that ended it. One that
/// takes longer than the given seconds, as one that waits for a lock that nobody holds, is ended by SIGALRM.
inline int endOf(const std::function<int()>& body, unsigned seconds = 30) {
  const pid_t process = ::fork();
  if (process == 0) {
    ::alarm(seconds);
    ::_exit(body());
  }
  int status = 0;
  if (process < 0 || ::waitpid(process, &status, 0) != process) throw std::runtime_error("no process can be started");
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

/// Reads to the end, when every writer has closed.
inline std::string readAll(int descriptor) {
  std::string text;
  char buffer[4096];
  ssize_t count = 0;
  while ((count = ::read(descriptor, buffer, sizeof buffer)) > 0) text.append(buffer, static_cast<std::size_t>(count));
  return text;
}

/// Reads one line, without its end.
inline std::string readLine(int descriptor) {
  std::string text;
  char letter = 0;
  while (::read(descriptor, &letter, 1) == 1 && letter != '\n') text += letter;
  return text;
}

}  // namespace kzm::tests

#endif
