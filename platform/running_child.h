// A child from its start until somebody has seen its end. It holds what that takes and no more, so that it may well
// outlive the object that the host started it with.
#ifndef KZM_PLATFORM_RUNNING_CHILD_H
#define KZM_PLATFORM_RUNNING_CHILD_H

#include <memory>
#include <mutex>
#include <optional>

#include <KZMUtilities/process.h>

#include "port/main_queue.h"
#include "port/task.h"

namespace kzm::platform {

class RunningChild : public std::enable_shared_from_this<RunningChild> {
 public:
  using Handler = ChildProcess::TerminationHandler;

  /// Starts it and keeps it until its end is seen; null if the start fails. The handler runs on the queue.
  [[nodiscard]] static std::shared_ptr<RunningChild> start(const port::Launch& launch, Handler handler,
                                                           port::MainQueue& queue);
  /// Looks after every child that has been started, for hosts that do not run their main queue.
  static void collectEnded();

  RunningChild(Handler handler, port::MainQueue& queue);

  [[nodiscard]] int processIdentifier() const { return processIdentifier_; }
  [[nodiscard]] bool isRunning();
  [[nodiscard]] std::optional<ExitStatus> exitStatus();
  void stop(port::Stop how);
  void setHandler(Handler handler);

 private:
  void watch();
  void runHandler();

  int processIdentifier_ = 0;  // never changes after the start
  port::MainQueue& queue_;
  std::mutex mutex_;
  std::unique_ptr<port::Task> task_;  // null before the start and once the end is seen
  std::unique_ptr<port::MainQueue::Watch> watch_;
  std::optional<ExitStatus> status_;
  Handler handler_;  // empty once it has run, or if it never will
};

}  // namespace kzm::platform

#endif
