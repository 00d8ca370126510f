#include "platform/running_child.h"

#include <algorithm>
#include <list>
#include <utility>
#include <vector>

#include "port/never_destroyed.h"

namespace kzm::platform {
namespace {

using Shared = std::shared_ptr<RunningChild>;

// Every child whose end nobody has seen. It keeps them alive, so that no ended process stays uncollected.
class Uncollected {
 public:
  // Children may be released until the very end of the host.
  static Uncollected& all() {
    static port::NeverDestroyed<Uncollected> instance;
    return *instance;
  }

  // A list of the one child that is to be added: adding it takes no memory any more.
  void add(std::list<Shared> child) noexcept {
    const std::lock_guard lock(mutex_);
    children_.splice(children_.end(), child);
  }

  void remove(const RunningChild* ended) {
    std::list<Shared> last;  // released after the lock, for the release may run the host's code
    const std::lock_guard lock(mutex_);
    const auto found = std::ranges::find(children_, ended, &Shared::get);
    if (found != children_.end()) last.splice(last.end(), children_, found);
  }

  std::vector<Shared> list() {
    const std::lock_guard lock(mutex_);
    return {children_.begin(), children_.end()};
  }

 private:
  std::mutex mutex_;
  std::list<Shared> children_;
};

}  // namespace

// All that takes memory comes before the start, but for the watch: a child that cannot be watched is ended.
std::shared_ptr<RunningChild> RunningChild::start(const port::Launch& launch, Handler handler, port::MainQueue& queue) {
  const std::optional<FileHandle> place = queue.keepPlace();
  if (place && !place->isOpen()) return nullptr;
  auto child = std::make_shared<RunningChild>(std::move(handler), queue);
  std::list<Shared> uncollected{child};
  child->task_ = port::start(launch);
  if (!child->task_) return nullptr;
  child->processIdentifier_ = child->task_->processIdentifier();
  Uncollected::all().add(std::move(uncollected));
  try {
    queue.open(place);
    if (child->isRunning()) child->watch();
  } catch (...) {
    child->stop(port::Stop::force);
    throw;
  }
  return child;
}

void RunningChild::collectEnded() {
  for (const Shared& child : Uncollected::all().list()) static_cast<void>(child->isRunning());
}

RunningChild::RunningChild(Handler handler, port::MainQueue& queue) : queue_(queue), handler_(std::move(handler)) {}

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

void RunningChild::stop(port::Stop how) {
  const std::lock_guard lock(mutex_);
  if (task_) task_->stop(how);
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
