// A main queue whose clock is held until a test advances it, and which is run by hand. Descriptors are real.
#ifndef KZM_TESTS_SUPPORT_FAKE_MAIN_QUEUE_H
#define KZM_TESTS_SUPPORT_FAKE_MAIN_QUEUE_H

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <poll.h>
#include <utility>
#include <vector>

#include "port/main_queue.h"

namespace kzm::tests {

class FakeMainQueue final : public port::MainQueue {
 public:
  void after(std::int64_t nanoseconds, Action action) override {
    const std::lock_guard lock(mutex_);
    takeMemory();
    delays_.push_back(nanoseconds);
    timers_.emplace(now_ + nanoseconds, std::move(action));
  }

  std::unique_ptr<Watch> whenReadable(int descriptor, Action action) override {
    const std::lock_guard lock(mutex_);
    takeMemory();
    watched_[++lastWatch_] = {descriptor, std::move(action)};
    return std::make_unique<FakeWatch>(*this, lastWatch_);
  }

  /// There is no memory for the timer or watch with that number, the next one being 1.
  void failAt(int number) {
    const std::lock_guard lock(mutex_);
    untilFailure_ = number;
  }

  /// Every delay that was asked for, in order.
  std::vector<std::int64_t> delays() {
    const std::lock_guard lock(mutex_);
    return delays_;
  }
  std::size_t pendingTimers() {
    const std::lock_guard lock(mutex_);
    return timers_.size();
  }
  std::size_t watches() {
    const std::lock_guard lock(mutex_);
    return watched_.size();
  }

  /// Moves the clock on, and runs what falls due on the way, each at its own time.
  void advance(std::int64_t nanoseconds) {
    const std::int64_t end = now() + nanoseconds;
    while (Action action = nextDue(end)) action();
    const std::lock_guard lock(mutex_);
    now_ = end;
  }

  /// Runs what is due now, and what waits for a descriptor that is readable now.
  void runDue() {
    advance(0);
    for (const Action& action : readable()) action();
    advance(0);
  }

 private:
  struct Watched {
    int descriptor = -1;
    Action action;
  };

  class FakeWatch final : public Watch {
   public:
    FakeWatch(FakeMainQueue& queue, int number) : queue_(queue), number_(number) {}
    ~FakeWatch() override {
      const std::lock_guard lock(queue_.mutex_);
      queue_.watched_.erase(number_);
    }

   private:
    FakeMainQueue& queue_;
    int number_;
  };

  void takeMemory() {
    if (untilFailure_ > 0 && --untilFailure_ == 0) throw std::bad_alloc();
  }

  std::int64_t now() {
    const std::lock_guard lock(mutex_);
    return now_;
  }

  Action nextDue(std::int64_t end) {
    const std::lock_guard lock(mutex_);
    if (timers_.empty() || timers_.begin()->first > end) return nullptr;
    now_ = timers_.begin()->first;
    return std::move(timers_.extract(timers_.begin()).mapped());
  }

  std::vector<Action> readable() {
    const std::lock_guard lock(mutex_);
    std::vector<Action> actions;
    for (const auto& [number, watched] : watched_) {
      pollfd entry{watched.descriptor, POLLIN, 0};
      if (::poll(&entry, 1, 0) > 0) actions.push_back(watched.action);
    }
    return actions;
  }

  std::mutex mutex_;
  std::int64_t now_ = 0;
  std::multimap<std::int64_t, Action> timers_;
  std::map<int, Watched> watched_;
  int lastWatch_ = 0;
  int untilFailure_ = 0;  // 0: none is to fail
  std::vector<std::int64_t> delays_;
};

}  // namespace kzm::tests

#endif
