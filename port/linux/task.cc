// A started program behind a pidfd, a descriptor that stands for this one process and never for a later one that gets
// its number.
#include "port/task.h"

#include <cerrno>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "port/linux/pidfd.h"
#include "port/linux/retried.h"
#include "port/linux/spawn.h"

namespace kzm::port {
namespace {

// False: there is no such child, or no longer.
bool waitFor(idtype_t kind, id_t identifier, siginfo_t& info, int options) {
  return retried([&] {
           info = {};
           return ::waitid(kind, identifier, &info, options);
         }) == 0;
}

ExitStatus statusOf(const siginfo_t& info) {
  const bool exited = info.si_code == CLD_EXITED;
  return {exited ? ExitStatus::Reason::exited : ExitStatus::Reason::signaled, info.si_status};
}

class LinuxTask final : public Task {
 public:
  LinuxTask(pid_t process, FileHandle pidfd) : process_(process), pidfd_(std::move(pidfd)) {}

  [[nodiscard]] int processIdentifier() const override { return process_; }
  [[nodiscard]] int exitDescriptor() const override { return pidfd_.descriptor(); }

  [[nodiscard]] std::optional<ExitStatus> collect() override {
    if (status_) return status_;
    siginfo_t info{};
    if (!pidfd_.isOpen() || !waitFor(kPidfd, static_cast<id_t>(pidfd_.descriptor()), info, WEXITED | WNOHANG)) {
      status_ = ExitStatus{};  // ended, but something else has taken the status: a host that ignores SIGCHLD, say
    } else if (info.si_pid != 0) {
      status_ = statusOf(info);
    }
    return status_;
  }

  void signal(int number) override {
    if (!status_ && pidfd_.isOpen()) signalPidfd(pidfd_.descriptor(), number);
  }

 private:
  pid_t process_;
  FileHandle pidfd_;
  std::optional<ExitStatus> status_;
};

// The descriptor, closed if its process is no child of ours: in a host that ignores SIGCHLD the child may have ended
// and be gone, and another process have got its number.
FileHandle onlyOwnChild(FileHandle pidfd) {
  siginfo_t info{};
  const auto descriptor = static_cast<id_t>(pidfd.descriptor());
  if (pidfd.isOpen() && !waitFor(kPidfd, descriptor, info, WEXITED | WNOHANG | WNOWAIT)) pidfd.close();
  return pidfd;
}

// Ends a child that cannot be watched. It is asked for first, so it is there, and its number is still its own.
void abandon(pid_t process) {
  siginfo_t info{};
  const auto identifier = static_cast<id_t>(process);
  if (!waitFor(P_PID, identifier, info, WEXITED | WNOHANG | WNOWAIT)) return;
  ::kill(process, SIGKILL);
  waitFor(P_PID, identifier, info, WEXITED);
}

}  // namespace

std::unique_ptr<Task> start(const Launch& launch) {
  // Proves, before anything is started, that such a descriptor is to be had, and keeps its place free.
  FileHandle place = FileHandle::adopt(openPidfd(::getpid()));
  if (!place.isOpen()) return nullptr;
  const std::optional<pid_t> process = spawn(launch);
  place.close();
  if (!process) return nullptr;
  const int pidfd = openPidfd(*process);
  if (pidfd < 0 && errno != ESRCH) {
    abandon(*process);
    return nullptr;
  }
  return std::make_unique<LinuxTask>(*process, onlyOwnChild(FileHandle::adopt(pidfd)));
}

}  // namespace kzm::port
