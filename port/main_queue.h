// The host's main queue: a place where actions run one at a time, on the thread that turns it.
#ifndef KZM_PORT_MAIN_QUEUE_H
#define KZM_PORT_MAIN_QUEUE_H

#include <cstdint>
#include <functional>
#include <memory>

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

  /// Runs the action once, as soon as the nanoseconds have passed; with 0 on the next turn.
  virtual void after(std::int64_t nanoseconds, Action action) = 0;

  /// Runs the action on each turn that finds the descriptor readable. The descriptor outlives the watch.
  [[nodiscard]] virtual std::unique_ptr<Watch> whenReadable(int descriptor, Action action) = 0;
};

/// GLib's default main context, the main queue of GTK and Qt programs. Never destroyed.
[[nodiscard]] MainQueue& mainQueue();

}  // namespace kzm::port

#endif
