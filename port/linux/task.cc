// A started program and its pidfd, a descriptor of this one process and never of a later one that gets
// its number.
#include "port/task.h"

#include <cerrno>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "port/descriptor.h"
#include "port/linux/pidfd.h"
#include "port/linux/spawn.h"
#include "port/retried.h"

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

// Made before its program is started, so that nothing can fail for want of memory after that.
class LinuxTask final : public Task {
 public:
  LinuxTask() = default;
  LinuxTask(const LinuxTask&) = delete;
  LinuxTask& operator=(const LinuxTask&) = delete;
  ~LinuxTask() override = default;

  // False: the kernel cannot watch it.
  [[nodiscard]] bool watch(pid_t process) {
    process_ = process;
    pidfd_ = Descriptor(openPidfd(process));
    if (!pidfd_.isOpen()) return errno == ESRCH;
    // In a host that ignores SIGCHLD the child may have ended and be gone, and another process have got its number.
    siginfo_t info{};
    if (!waitForOwn(info, WEXITED | WNOHANG | WNOWAIT)) pidfd_.close();
    return true;
  }

  [[nodiscard]] int processIdentifier() const override { return process_; }
  [[nodiscard]] int exitDescriptor() const override { return pidfd_.number(); }

  [[nodiscard]] std::optional<ExitStatus> collect() override {
    if (status_) return status_;
    siginfo_t info{};
    if (!pidfd_.isOpen() || !waitForOwn(info, WEXITED | WNOHANG)) {
      status_ = ExitStatus{};  // ended, but something else has taken the status: a host that ignores SIGCHLD, say
    } else if (info.si_pid != 0) {
      status_ = statusOf(info);
    }
    return status_;
  }

  void stop(Stop how) override {
    const int number = how == Stop::force ? SIGKILL : SIGTERM;
    if (!status_ && pidfd_.isOpen()) signalPidfd(pidfd_.number(), number);
  }

 private:
  [[nodiscard]] bool waitForOwn(siginfo_t& info, int options) const {
    return waitFor(kPidfd, static_cast<id_t>(pidfd_.number()), info, options);
  }

  pid_t process_ = 0;
  Descriptor pidfd_;
  std::optional<ExitStatus> status_;
};

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
  auto task = std::make_unique<LinuxTask>();
  const std::optional<pid_t> process = spawn(launch);
  place.close();
  if (!process) return nullptr;
  if (task->watch(*process)) return task;
  abandon(*process);
  return nullptr;
}

}  // namespace kzm::port
