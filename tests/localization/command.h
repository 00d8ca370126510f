// Runs a shell command and keeps what it says.
#ifndef KZM_TESTS_LOCALIZATION_COMMAND_H
#define KZM_TESTS_LOCALIZATION_COMMAND_H

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace kzm::tests {

struct Outcome {
  int exitCode = -1;
  std::string output;  // standard output and standard error
};

inline Outcome run(const std::string& command) {
  Outcome outcome;
  std::FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return outcome;
  std::array<char, 4096> buffer{};
  while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
    outcome.output.append(buffer.data(), count);
  }
  const int status = pclose(pipe);
  if (WIFEXITED(status)) outcome.exitCode = WEXITSTATUS(status);
  return outcome;
}

}  // namespace kzm::tests

#endif
