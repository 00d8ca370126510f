#include "platform/child.h"

#include <utility>

#include <KZMUtilities/guards.h>

#include "platform/launch_plan.h"

namespace kzm::platform {
namespace {

constexpr double kNanosecondsPerSecond = 1'000'000'000.0;
// The longest time-out that is armed: a little less than 64 bits of nanoseconds hold.
constexpr double kLongestTimeoutSeconds = 9.2e9;
constexpr std::int64_t kGraceNanoseconds = 2'000'000'000;

constexpr const char* kTerminating = "Task is still running, attempting to terminate.";
constexpr const char* kKilling = "Task did not terminate, sending SIGKILL.";

Pipe inputPipe(const ChildConfiguration& configuration) {
  if (const Pipe* pipe = std::get_if<Pipe>(&configuration.standardInput)) return *pipe;
  throw Exception("InvalidArgument", "The standard input is not a pipe.");
}

}  // namespace

std::optional<std::int64_t> timeoutNanoseconds(double seconds) {
  if (seconds > kLongestTimeoutSeconds) return std::nullopt;
  if (!(seconds > 0.0)) return 0;  // NaN too
  return static_cast<std::int64_t>(seconds * kNanosecondsPerSecond);
}

Child::Child(ChildConfiguration configuration, Host host) : host_(host), configuration_(std::move(configuration)) {}

Child::~Child() { RunningChild::collectEnded(); }

ChildConfiguration Child::configuration() {
  const std::lock_guard lock(mutex_);
  return configuration_;
}

void Child::setConnection(StandardConnection ChildConfiguration::*stream, StandardConnection connection) {
  const std::lock_guard lock(mutex_);
  std::swap(configuration_.*stream, connection);
}

// The handler that is replaced is destroyed outside the lock: what it holds is the host's, and may call back.
void Child::setTerminationHandler(ChildProcess::TerminationHandler handler) {
  {
    const std::lock_guard lock(mutex_);
    if (!run_) return handler_.swap(handler);
  }
  run()->setHandler(std::move(handler));
}

bool Child::launch() {
  RunningChild::collectEnded();
  const std::lock_guard lock(mutex_);
  if (run_) return false;
  const std::optional<port::Launch> plan = planLaunch(configuration_);
  if (plan) run_ = RunningChild::start(*plan, handler_, host_.queue);
  if (!run_) return false;
  handler_ = nullptr;
  closeChildsEnds(configuration_);
  return true;
}

void Child::launchWithTimeout(double seconds) {
  // Deliberate: a second start is a failed start too, and cleans up the child that is running since the first
  // (ChildTest.ASecondStartIsAFailedStartAndCleansUp).
  if (!launch()) return cleanup();
  const auto delay = timeoutNanoseconds(seconds);
  if (!delay) return;
  try {
    // Deliberate: the watchdog is never disarmed, and keeps the child until it fires
    // (ChildTest.TheWatchdogKeepsTheChildUntilItFires).
    host_.queue.after(*delay, [self = shared_from_this()] { self->forceCancel(); });
  } catch (...) {
    run()->stop(port::Stop::force);  // a child without its watchdog must not run
    throw;
  }
}

void Child::forceCancel() {
  if (!isRunning()) return;
  host_.log.write(kTerminating);
  run()->stop(port::Stop::request);
  host_.queue.after(kGraceNanoseconds, [self = shared_from_this()] { self->killIfStillRunning(); });
}

void Child::killIfStillRunning() {
  if (!isRunning()) return;
  host_.log.write(kKilling);
  run()->stop(port::Stop::force);
}

void Child::cleanup() {
  KZMTryCatchBlock([this] {
    // Deliberate: cleanup does nothing at all, without a word, if the standard input is not a pipe
    // (ChildTest.CleanupEndsSilentlyIfTheInputIsNotAPipe).
    const Pipe input = inputPipe(configuration());
    input.readingEnd().close();
    input.writingEnd().close();
    // Deliberate: cleanup only clears the standard output, it does not close it
    // (ChildTest.CleanupOnlyClearsTheOutputAndDoesNotCloseIt).
    setConnection(&ChildConfiguration::standardOutput, NullStream{});
    setTerminationHandler(nullptr);
  });
}

// Every question looks after all children, for it may be the only one that this host ever asks.
bool Child::isRunning() {
  RunningChild::collectEnded();
  const std::shared_ptr<RunningChild> child = run();
  return child && child->isRunning();
}

int Child::processIdentifier() {
  const std::shared_ptr<RunningChild> child = run();
  return child ? child->processIdentifier() : 0;
}

std::optional<ExitStatus> Child::exitStatus() {
  RunningChild::collectEnded();
  const std::shared_ptr<RunningChild> child = run();
  return child ? child->exitStatus() : std::nullopt;
}

std::shared_ptr<RunningChild> Child::run() {
  const std::lock_guard lock(mutex_);
  return run_;
}

}  // namespace kzm::platform
