// A started program: its start, its end, and the only safe way to signal it.
#ifndef KZM_PORT_TASK_H
#define KZM_PORT_TASK_H

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <KZMUtilities/process.h>

namespace kzm::port {

/// Where a standard stream of the new program leads. `file` is read for Kind::file only.
struct Stream {
  enum class Kind { inherited, null, file };
  Kind kind = Kind::inherited;
  FileHandle file{};
};

/// Everything a start needs. No text holds a zero byte.
struct Launch {
  std::string executable{};
  std::vector<std::string> arguments{};
  std::optional<std::vector<std::string>> environment{};  // "NAME=value"
  std::string workingDirectory{};
  std::array<Stream, 3> streams{};  // input, output, error; files are at 3 or above
};

/// How a program is stopped: SIGTERM, which it may ignore, or SIGKILL.
enum class Stop : std::uint8_t { request, force };

/// One thread at a time; its owner holds the lock that keeps a signal and the collecting of the exit apart.
class Task {
 public:
  virtual ~Task() = default;
  Task(const Task&) = delete;
  Task& operator=(const Task&) = delete;

  [[nodiscard]] virtual int processIdentifier() const = 0;
  /// Becomes readable when the program has ended, and stays so; open as long as the task.
  [[nodiscard]] virtual int exitDescriptor() const = 0;
  /// How the program ended, or none while it runs. After the first answer its number may be given to another program.
  [[nodiscard]] virtual std::optional<ExitStatus> collect() = 0;
  /// Reaches the program, or nobody when it has ended.
  virtual void stop(Stop how) = 0;

 protected:
  Task() = default;
};

/// Starts the program; null if that fails.
[[nodiscard]] std::unique_ptr<Task> start(const Launch& launch);

}  // namespace kzm::port

#endif
