// The host's main queue: a place where actions run one at a time, on the thread that runs it.
#ifndef KZM_PORT_MAIN_QUEUE_H
#define KZM_PORT_MAIN_QUEUE_H

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include <KZMUtilities/process.h>

namespace kzm::port {

class MainQueue {
 public:
  /// Must not throw. It is destroyed, with all it holds, once it cannot run any more.
  using Action = std::function<void()>;

  /// Ends the watching when destroyed, on any thread. An action that has just begun still runs to its end.
  class Watch {
   public:
    Watch() = default;
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    virtual ~Watch() = default;
  };

  MainQueue() = default;
  MainQueue(const MainQueue&) = delete;
  MainQueue& operator=(const MainQueue&) = delete;
  virtual ~MainQueue() = default;

  /// The queue opens a descriptor when it is first used, and ends the host when none is free. So its place is taken
  /// beforehand, by a descriptor that `open` closes. None when the queue is open already; a closed one when the host
  /// has no descriptor left.
  [[nodiscard]] virtual std::optional<FileHandle> keepPlace() { return std::nullopt; }

  /// Opens the queue in the place that was kept for it. Actions can be given to it from then on.
  virtual void open(const std::optional<FileHandle>& /*place*/) {}

  /// Runs the action once, as soon as the nanoseconds have passed; with 0 when the main loop next runs.
  virtual void after(std::int64_t nanoseconds, Action action) = 0;

  /// Runs the action each time the main loop finds the descriptor readable. The descriptor outlives the watch.
  [[nodiscard]] virtual std::unique_ptr<Watch> whenReadable(int descriptor, Action action) = 0;
};

/// GLib's default main context, the main queue of GTK and Qt programs. Never destroyed.
[[nodiscard]] MainQueue& mainQueue();

}  // namespace kzm::port

#endif
