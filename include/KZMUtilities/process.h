// Child processes that must not run longer than a given time.
//
// Every operation may be called from any thread. Watchdogs and termination handlers run on the main queue, which is
// GLib's default main context, run by the host's toolkit or by the host itself. Everything else works even if no one
// runs it.
#ifndef KZMUTILITIES_PROCESS_H
#define KZMUTILITIES_PROCESS_H

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <KZMUtilities/export.h>

namespace kzm {

namespace platform {
class Child;
}

// ---- Files and pipes ------------------------------------------------------------------------------------------------

/// An open file, pipe end or device. Copies are handles on the same one: closing any of them closes it for all, once;
/// a descriptor number that the system has since given to something else is never closed. The last handle to go closes
/// it too.
///
/// Example:
///   const FileHandle file = FileHandle::openForReading("/dev/null");
///   const FileHandle copy = file;
///   const FileHandle other = file.duplicate();
///   copy.close();
///   file.isOpen()  // false
///   other.isOpen()  // true
class KZM_EXPORT FileHandle {
 public:
  /// A closed handle.
  FileHandle() noexcept;
  /// Takes over an open descriptor, and sees to it that programs started elsewhere do not inherit it. A
  /// number that is negative, or that no open descriptor has, gives a closed handle. When memory runs out, the
  /// descriptor is closed.
  ///
  /// Example:
  ///   FileHandle::adopt(-1).isOpen()  // false
  [[nodiscard]] static FileHandle adopt(int descriptor);
  /// Opens a file; closed if that fails.
  [[nodiscard]] static FileHandle openForReading(const std::string& path);
  /// Creates or empties a file and opens it; closed if that fails.
  [[nodiscard]] static FileHandle openForWriting(const std::string& path);
  /// A separate handle on the same open file; closed if this one is, or if the descriptors have run out.
  [[nodiscard]] FileHandle duplicate() const;

  [[nodiscard]] bool isOpen() const;
  /// The descriptor, still owned by the handle; -1 when closed.
  [[nodiscard]] int descriptor() const;
  /// Closes it. Does nothing when it is closed already.
  void close() const;

 private:
  struct State;
  std::shared_ptr<State> state_;
};

/// A pipe: what goes into the writing end comes out of the reading end. Copies are handles on the same pipe.
class KZM_EXPORT Pipe {
 public:
  /// A new pipe; both ends are closed if the system has no more.
  ///
  /// Example:
  ///   const Pipe pipe;
  ///   pipe.writingEnd().close();
  ///   pipe.readingEnd().isOpen()  // true
  ///   pipe.writingEnd().isOpen()  // false
  Pipe();
  [[nodiscard]] const FileHandle& readingEnd() const noexcept { return readingEnd_; }
  [[nodiscard]] const FileHandle& writingEnd() const noexcept { return writingEnd_; }

 private:
  FileHandle readingEnd_;
  FileHandle writingEnd_;
};

/// The child shares the host's own stream.
struct InheritedStream {};
/// The child reads nothing, and what it writes is lost.
struct NullStream {};

/// Where one of a child's three standard streams leads. After a good start the child's end of a pipe is closed in the
/// host; a file stays open until its last handle is gone.
using StandardConnection = std::variant<InheritedStream, NullStream, Pipe, FileHandle>;

// ---- Child processes ------------------------------------------------------------------------------------------------

/// What is to be started, and how.
struct ChildConfiguration {
  /// Path of the program, never searched for; a relative one starts at the host's working directory. It is also the
  /// program's argument 0.
  std::string executable{};
  /// The arguments from number 1.
  std::vector<std::string> arguments{};
  /// The whole environment; null: the host's.
  std::optional<std::map<std::string, std::string>> environment{};
  /// Empty: the host's.
  std::string workingDirectory{};
  StandardConnection standardInput{};
  StandardConnection standardOutput{};
  StandardConnection standardError{};
};

/// How a child ended.
struct ExitStatus {
  enum class Reason {
    exited,    ///< by itself, with an exit code of 0 to 255
    signaled,  ///< by a signal, with its number
    unknown,   ///< the host ignores SIGCHLD, or something else in it collected the status; the code is 0
  };
  Reason reason = Reason::unknown;
  int code = 0;
  [[nodiscard]] friend bool operator==(const ExitStatus&, const ExitStatus&) = default;
};

/// A child process: configured, then started at most once. Copies are handles on the same child.
///
/// The child gets its own process group, no blocked signals, every signal's default action, and no descriptor but its
/// three standard streams. Signals reach the child or nobody, never another process that got its number.
///
/// The exit is noticed by the main queue, or by the next isRunning, exitStatus, start or release of any ChildProcess.
/// The object may be released while its child runs: the child goes on, pipes held by nobody else are closed, and the
/// library keeps no more than what it needs to collect the exit and to call the termination handler. The library has no
/// thread of its own, so in a host that neither runs its main queue nor calls any of these, an ended child waits to
/// be collected until the host ends.
///
/// Example:
///   ChildProcess child({.executable = "/bin/sh", .arguments = {"-c", "exit 3"}});
///   child.launch()  // true
///   while (child.isRunning()) std::this_thread::yield();
///   child.exitStatus()->code  // 3
class KZM_EXPORT ChildProcess {
 public:
  /// Called once on the main queue when the child has ended. It must not throw. While it is set and not yet called it
  /// keeps alive what it holds, so one that holds its own ChildProcess should be cleared if that is never started.
  using TerminationHandler = std::function<void(const ExitStatus&)>;

  explicit ChildProcess(ChildConfiguration configuration = {});

  [[nodiscard]] ChildConfiguration configuration() const;
  /// The connections of a child that runs already do not change any more: what is set then is only remembered.
  void setStandardInput(StandardConnection connection);
  void setStandardOutput(StandardConnection connection);
  void setStandardError(StandardConnection connection);
  /// May be set or, with an empty function, cleared at any time; without effect once the child has ended.
  void setTerminationHandler(TerminationHandler handler);

  /// Starts the child. Returns false, and changes nothing, if that fails: the executable is missing, not a regular
  /// file or not executable, the working directory is missing, a connection is closed, a text holds a zero byte, the
  /// name of a variable is empty or holds "=", the child was started before, or the host has fewer descriptors free
  /// than the start takes (five at most, of which one or two stay in use).
  bool launch();

  /// `launchWithTimeout:` Starts the child and arms a watchdog, which calls forceCancel on the main queue after
  /// `seconds`, cut to whole nanoseconds: NaN, zero or less when it next runs, more than 9.2e9 (infinity too) never.
  /// The watchdog keeps the child object alive until it fires, also when the child has ended before. If the start
  /// fails, cleanup is called, and nothing else happens.
  ///
  /// Example:
  ///   ChildProcess child({.executable = "/bin/sleep", .arguments = {"60"}});
  ///   child.launchWithTimeout(10.0);
  ///   child.isRunning()  // true
  ///   child.forceCancel();
  void launchWithTimeout(double seconds);

  /// `forceCancel` Stops the child if it is running: SIGTERM at once, SIGKILL after 2 seconds on the main queue. Both
  /// steps write a line to the system log, unless the child has ended by then.
  void forceCancel();

  /// `cleanup` Closes both ends of the standard input's pipe, sets the standard output to NullStream without closing
  /// it, and clears the termination handler. If the standard input is no pipe, nothing of that happens.
  ///
  /// Example:
  ///   ChildProcess child({.executable = "/bin/cat", .standardInput = Pipe()});
  ///   child.cleanup();
  ///   child.isRunning()  // false
  void cleanup();

  /// Whether the child is alive at this moment.
  [[nodiscard]] bool isRunning() const;
  /// The child's number, also after its end; 0 before the start.
  [[nodiscard]] int processIdentifier() const;
  /// None before the start and while the child runs.
  [[nodiscard]] std::optional<ExitStatus> exitStatus() const;

 private:
  std::shared_ptr<platform::Child> child_;
};

}  // namespace kzm

#endif
