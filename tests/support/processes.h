// What tests look up about processes, past the library: descriptors and children of this one, and the end of another.
#ifndef KZM_TESTS_SUPPORT_PROCESSES_H
#define KZM_TESTS_SUPPORT_PROCESSES_H

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <string>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kzm::tests {

inline std::ptrdiff_t openDescriptors() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

/// Whether this process has any child, running or not yet collected.
inline bool hasChildren() {
  siginfo_t info{};
  return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

/// The letter that the system shows for the process: "Z" for one that has ended and is not collected, "" for none.
inline std::string processState(int process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/stat");
  std::string line;
  std::getline(file, line);
  const std::size_t name = line.rfind(") ");
  return name == std::string::npos ? "" : line.substr(name + 2, 1);
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
