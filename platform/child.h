// What a ChildProcess is a handle on: its configuration, its run, and the timers that end it.
#ifndef KZM_PLATFORM_CHILD_H
#define KZM_PLATFORM_CHILD_H

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

#include <KZMUtilities/process.h>

#include "platform/running_child.h"
#include "port/log.h"
#include "port/main_queue.h"

namespace kzm::platform {

/// The parts of the host that a child needs. Both outlive every child.
struct Host {
  port::MainQueue& queue;
  port::Log& log;
};

/// A time-out in whole nanoseconds, cut toward zero; 0: when the queue next runs; null: never.
[[nodiscard]] std::optional<std::int64_t> timeoutNanoseconds(double seconds);

class Child : public std::enable_shared_from_this<Child> {
 public:
  Child(ChildConfiguration configuration, Host host);
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  [[nodiscard]] ChildConfiguration configuration();
  void setConnection(StandardConnection ChildConfiguration::*stream, StandardConnection connection);
  void setTerminationHandler(ChildProcess::TerminationHandler handler);

  bool launch();
  void launchWithTimeout(double seconds);
  void forceCancel();
  void cleanup();

  [[nodiscard]] bool isRunning();
  [[nodiscard]] int processIdentifier();
  [[nodiscard]] std::optional<ExitStatus> exitStatus();

 private:
  [[nodiscard]] std::shared_ptr<RunningChild> run();
  void killIfStillRunning();

  const Host host_;
  std::mutex mutex_;
  ChildConfiguration configuration_;
  ChildProcess::TerminationHandler handler_;  // until the start
  std::shared_ptr<RunningChild> run_;         // since the start
};

}  // namespace kzm::platform

#endif
