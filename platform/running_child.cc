#include "platform/running_child.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kzm::platform {
namespace {

using Shared = std::shared_ptr<RunningChild>;

// Every child whose end nobody has seen. It keeps them alive, and so no ended process is left behind uncollected.
class Uncollected {
 public:
  // Never destroyed: children may be released until the very end of the host.
  static Uncollected& all() {
    static Uncollected& instance = *std::make_unique<Uncollected>().release();
    return instance;
  }

  void add(Shared child) {
    const std::lock_guard lock(mutex_);
    children_.push_back(std::move(child));
  }

  void remove(const RunningChild* ended) {
    Shared last;  // released after the lock, for the release may run the host's code
    const std::lock_guard lock(mutex_);
    const auto found = std::ranges::find(children_, ended, &Shared::get);
    if (found == children_.end()) return;
    last = std::exchange(*found, std::move(children_.back()));
    children_.pop_back();
  }

  std::vector<Shared> list() {
    const std::lock_guard lock(mutex_);
    return children_;
  }

 private:
  std::mutex mutex_;
  std::vector<Shared> children_;
};

}  // namespace

std::shared_ptr<RunningChild> RunningChild::start(const port::Launch& launch, Handler handler, port::MainQueue& queue) {
  std::unique_ptr<port::Task> task = port::start(launch);
  if (!task) return nullptr;
  auto child = std::make_shared<RunningChild>(std::move(task), std::move(handler), queue);
  Uncollected::all().add(child);
  if (child->isRunning()) child->watch();
  return child;
}

void RunningChild::collectEnded() {
  for (const Shared& child : Uncollected::all().list()) static_cast<void>(child->isRunning());
}

RunningChild::RunningChild(std::unique_ptr<port::Task> task, Handler handler, port::MainQueue& queue)
    : processIdentifier_(task->processIdentifier()),
      queue_(queue),
      task_(std::move(task)),
      handler_(std::move(handler)) {}

void RunningChild::watch() {
  const std::lock_guard lock(mutex_);
  if (!task_) return;
  watch_ = queue_.whenReadable(task_->exitDescriptor(), [weak = weak_from_this()] {
    if (const Shared child = weak.lock()) static_cast<void>(child->isRunning());
  });
}

bool RunningChild::isRunning() {
  std::unique_ptr<port::Task> ended;  // destroyed after the watch on its descriptor, and both after the lock
  std::unique_ptr<port::MainQueue::Watch> watch;
  {
    const std::lock_guard lock(mutex_);
    if (!task_) return false;
    status_ = task_->collect();
    if (!status_) return true;
    ended = std::move(task_);
    watch = std::move(watch_);
    if (handler_) queue_.after(0, [child = shared_from_this()] { child->runHandler(); });
  }
  Uncollected::all().remove(this);
  return false;
}

std::optional<ExitStatus> RunningChild::exitStatus() {
  if (isRunning()) return std::nullopt;
  const std::lock_guard lock(mutex_);
  return status_;
}

void RunningChild::signal(int number) {
  const std::lock_guard lock(mutex_);
  if (task_) task_->signal(number);
}

void RunningChild::setHandler(Handler handler) {
  const std::lock_guard lock(mutex_);
  // A child that has ended has its handler's call on the way, or had no handler then and never calls one.
  if (task_ || handler_) handler_.swap(handler);
}

void RunningChild::runHandler() {
  Handler handler;
  ExitStatus status;
  {
    const std::lock_guard lock(mutex_);
    handler = std::exchange(handler_, nullptr);
    status = status_.value_or(ExitStatus{});
  }
  if (handler) handler(status);
}

}  // namespace kzm::platform
