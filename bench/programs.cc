// The program from outside: how long it takes to start and end, and to format what comes in.
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "bench/parts.h"
#include "bench/report.h"
#include "bench/values.h"

namespace kzm::bench {
namespace {

struct Spent {
  double wall = 0.0;  // milliseconds, as the following
  double processor = 0.0;
};

double milliseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

// Runs the command on that input. Nothing when it cannot be started or fails.
std::optional<Spent> spentBy(std::vector<std::string> words, const char* input) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, STDIN_FILENO, input, O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  const auto start = std::chrono::steady_clock::now();
  pid_t process = -1;
  const bool isStarted = posix_spawnp(&process, arguments[0], &files, nullptr, arguments.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&files);
  int status = 0;
  rusage used{};
  if (!isStarted || wait4(process, &status, 0, &used) != process || status != 0) return {};
  const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - start;
  return Spent{wall.count(), milliseconds(used.ru_utime) + milliseconds(used.ru_stime)};
}

// The middle one of several runs.
std::optional<double> middleTimeOf(std::size_t runs, double Spent::*time, const std::vector<std::string>& words,
                                   const char* input) {
  std::vector<double> times;
  while (times.size() < runs) {
    const std::optional<Spent> spent = spentBy(words, input);
    if (!spent) return {};
    times.push_back((*spent).*time);
  }
  return middleOf(std::move(times));
}

// A million numbers of bytes, one on each line, in a file that is gone at the end.
class Lines {
 public:
  Lines() {
    const int descriptor = mkstemp(path_.data());
    const std::unique_ptr<FILE, int (*)(FILE*)> file(fdopen(descriptor, "w"), std::fclose);
    const Span values = sizes();
    for (std::size_t line = 0; file && line < kLines; ++line) {
      std::fprintf(file.get(), "%.0f\n", values[line % values.size()]);
    }
  }
  Lines(const Lines&) = delete;
  Lines& operator=(const Lines&) = delete;
  ~Lines() { std::filesystem::remove(path_); }

  [[nodiscard]] const char* path() const { return path_.c_str(); }

 private:
  static constexpr std::size_t kLines = 1'000'000;
  std::string path_ = std::filesystem::temp_directory_path() / "kzm_bench_XXXXXX";
};

}  // namespace

void measurePrograms(const char* program) {
  const std::string kzmutil = std::filesystem::path(program).replace_filename("kzmutil");
  constexpr std::size_t kStarts = 101;
  printHeading("A program from start to exit", "ms");
  const auto start = middleTimeOf(kStarts, &Spent::wall, {kzmutil, "format", "memory", "1024"}, "/dev/null");
  if (start) printRow("kzmutil format", *start, atMost(2.5));
  if (const auto least = middleTimeOf(kStarts, &Spent::wall, {"true"}, "/dev/null")) printRow("true", *least);

  constexpr std::size_t kPasses = 5;
  const Lines lines;
  printHeading("A million lines", "x numfmt");
  const auto ours = middleTimeOf(kPasses, &Spent::processor, {kzmutil, "format", "memory"}, lines.path());
  const auto theirs = middleTimeOf(kPasses, &Spent::processor, {"numfmt", "--to=iec"}, lines.path());
  if (ours && theirs) printRow("kzmutil format memory", *ours / *theirs, atMost(1.0));
}

}  // namespace kzm::bench
