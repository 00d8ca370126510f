#include "port/linux/spawn.h"

#include <fcntl.h>
#include <filesystem>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kzm::port {
namespace {

constexpr int kFirstUnwantedDescriptor = 3;

class Attributes {
 public:
  Attributes() {
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setpgroup(&attributes_, 0);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &all);
  }
  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;
  ~Attributes() { posix_spawnattr_destroy(&attributes_); }

  [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

// What the new process does before it becomes the program. A step that cannot even be noted makes the start fail.
class Steps {
 public:
  explicit Steps(const Launch& launch) {
    posix_spawn_file_actions_init(&actions_);
    for (int number = 0; number < 3; ++number) connect(number, launch.streams[static_cast<std::size_t>(number)]);
    note(posix_spawn_file_actions_addclosefrom_np(&actions_, kFirstUnwantedDescriptor));
    if (!launch.workingDirectory.empty())
      note(posix_spawn_file_actions_addchdir_np(&actions_, launch.workingDirectory.c_str()));
  }
  Steps(const Steps&) = delete;
  Steps& operator=(const Steps&) = delete;
  ~Steps() { posix_spawn_file_actions_destroy(&actions_); }

  [[nodiscard]] bool isComplete() const { return isComplete_; }
  [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  void connect(int number, const Stream& stream) {
    if (stream.kind == Stream::Kind::null)
      note(posix_spawn_file_actions_addopen(&actions_, number, "/dev/null", number == 0 ? O_RDONLY : O_WRONLY, 0));
    if (stream.kind == Stream::Kind::file)
      note(posix_spawn_file_actions_adddup2(&actions_, stream.file.descriptor(), number));
  }
  void note(int error) { isComplete_ = isComplete_ && error == 0; }

  posix_spawn_file_actions_t actions_{};
  bool isComplete_ = true;
};

bool isProgram(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  return ::faccessat(AT_FDCWD, path.c_str(), X_OK, AT_EACCESS) == 0;
}

// The child looks the path up after it has changed its working directory, where a relative one would lead elsewhere.
std::string pathForChild(const Launch& launch) {
  if (launch.workingDirectory.empty()) return launch.executable;
  std::error_code error;
  return std::filesystem::absolute(launch.executable, error).string();
}

// The array of pointers that the system wants, as long as the texts live; it does not change them.
std::vector<char*> pointers(const std::vector<std::string>& texts) {
  std::vector<char*> result;
  result.reserve(texts.size() + 1);
  for (const std::string& text : texts) result.push_back(const_cast<char*>(text.c_str()));
  result.push_back(nullptr);
  return result;
}

}  // namespace

std::optional<pid_t> spawn(const Launch& launch) {
  const Steps steps(launch);
  if (!isProgram(launch.executable) || !steps.isComplete()) return std::nullopt;
  std::vector<std::string> argumentTexts{launch.executable};
  argumentTexts.insert(argumentTexts.end(), launch.arguments.begin(), launch.arguments.end());
  const std::vector<char*> arguments = pointers(argumentTexts);
  const std::vector<char*> variables = launch.environment ? pointers(*launch.environment) : std::vector<char*>{};
  char* const* environment = launch.environment ? variables.data() : environ;
  pid_t process = 0;
  const int error = posix_spawn(&process, pathForChild(launch).c_str(), steps.get(), Attributes().get(),
                                arguments.data(), environment);
  if (error != 0) return std::nullopt;
  return process;
}

}  // namespace kzm::port
