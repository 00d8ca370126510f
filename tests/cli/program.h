// Runs the real kzmutil in an environment of its own, and returns what it said.
#ifndef KZM_TESTS_CLI_PROGRAM_H
#define KZM_TESTS_CLI_PROGRAM_H

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <ostream>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "tests/support/scratch_directory.h"

namespace kzm::tests {

struct Outcome {
  std::string output;
  std::string errors;
  int status = -1;  // minus the signal when one ended it

  friend bool operator==(const Outcome&, const Outcome&) = default;
  friend void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << "status " << outcome.status << "\noutput: " << outcome.output << "\nerrors: " << outcome.errors;
  }
};

/// The verb and the words after it.
inline std::vector<std::string> line(const char* verb, std::vector<std::string> words) {
  words.insert(words.begin(), verb);
  return words;
}

/// The settings of all programs of a test, empty at its start.
inline ScratchDirectory& configuration() {
  static ScratchDirectory directory;
  return directory;
}

/// A running kzmutil; its standard output and error go to `output` and `errors`. Variables beyond the usual ones go
/// first.
inline pid_t started(const std::vector<std::string>& words, int input, int output, int errors,
                     std::vector<std::string> variables = {}) {
  std::vector<std::string> texts{KZMUTIL};
  texts.insert(texts.end(), words.begin(), words.end());
  std::vector<char*> arguments;
  for (std::string& text : texts) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  for (const char* usual : {"LANG=en_US.UTF-8", "TZ=UTC", "PATH=/usr/bin:/bin", "TERM=xterm"}) {
    variables.emplace_back(usual);
  }
  variables.push_back("XDG_CONFIG_HOME=" + configuration().path("config"));
  if (const char* options = std::getenv("ASAN_OPTIONS")) variables.push_back(std::string("ASAN_OPTIONS=") + options);
  std::vector<char*> environment;
  for (std::string& text : variables) environment.push_back(text.data());
  environment.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, errors, STDERR_FILENO);
  pid_t process = -1;
  if (posix_spawn(&process, KZMUTIL, &actions, nullptr, arguments.data(), environment.data()) != 0) process = -1;
  posix_spawn_file_actions_destroy(&actions);
  return process;
}

/// Waits for its end: the exit status, or minus the signal.
inline int statusOf(pid_t process) {
  int status = 0;
  if (process < 0 || ::waitpid(process, &status, 0) != process) return -1000;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

/// A pipe whose ends are not inherited but where they are put.
struct Pipe {
  Pipe() {
    if (::pipe2(ends, O_CLOEXEC) != 0) std::abort();
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    closeReader();
    closeWriter();
  }
  void closeReader() { close(ends[0]); }
  void closeWriter() { close(ends[1]); }
  [[nodiscard]] int reader() const { return ends[0]; }
  [[nodiscard]] int writer() const { return ends[1]; }

 private:
  static void close(int& end) {
    if (end >= 0) ::close(end);
    end = -1;
  }
  int ends[2] = {-1, -1};
};

/// Appends what can be read now; false at the end.
inline bool readSome(int from, std::string& to) {
  char room[65536];
  const ssize_t count = ::read(from, room, sizeof room);
  if (count > 0) to.append(room, static_cast<std::size_t>(count));
  return count > 0;
}

/// Runs kzmutil to its end with this standard input, and with more variables in its environment.
inline Outcome run(const std::vector<std::string>& words, std::string_view input = {},
                   const std::vector<std::string>& variables = {}) {
  std::signal(SIGPIPE, SIG_IGN);
  Pipe in;
  Pipe out;
  Pipe err;
  const pid_t process = started(words, in.reader(), out.writer(), err.writer(), variables);
  in.closeReader();
  out.closeWriter();
  err.closeWriter();
  ::fcntl(in.writer(), F_SETFL, O_NONBLOCK);
  Outcome outcome;
  pollfd watched[] = {{out.reader(), POLLIN, 0}, {err.reader(), POLLIN, 0}, {in.writer(), POLLOUT, 0}};
  while (watched[0].fd >= 0 || watched[1].fd >= 0) {
    if (input.empty()) {
      in.closeWriter();
      watched[2].fd = -1;
    }
    if (::poll(watched, 3, -1) < 0) break;
    if (watched[0].revents != 0 && !readSome(watched[0].fd, outcome.output)) watched[0].fd = -1;
    if (watched[1].revents != 0 && !readSome(watched[1].fd, outcome.errors)) watched[1].fd = -1;
    if (watched[2].fd < 0 || watched[2].revents == 0) continue;
    const ssize_t count = ::write(in.writer(), input.data(), input.size());
    input.remove_prefix(count < 0 ? input.size() : static_cast<std::size_t>(count));
  }
  outcome.status = statusOf(process);
  return outcome;
}

}  // namespace kzm::tests

#endif
