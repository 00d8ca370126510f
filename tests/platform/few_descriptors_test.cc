// Launches in a host that has next to no descriptors left. Each runs in a host process of its own, with a main context
// from before or without one.
#include <csignal>
#include <fcntl.h>
#include <glib.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <KZMUtilities/process.h>

#include "tests/support/processes.h"

namespace kzm::tests {
namespace {

constexpr rlim_t kLimit = 64;

int descriptorsInUse() {
  int count = 0;
  for (int number = 0; number < static_cast<int>(kLimit); ++number) count += ::fcntl(number, F_GETFD) >= 0 ? 1 : 0;
  return count;
}

// Takes all descriptors but the given number; what it takes is lost with the process.
void leave(int free) {
  const rlimit limit{kLimit, kLimit};
  ::setrlimit(RLIMIT_NOFILE, &limit);
  for (int left = static_cast<int>(kLimit) - descriptorsInUse(); left > free; --left) ::open("/dev/null", O_RDONLY);
}

void giveBack() {
  for (int number = STDERR_FILENO + 1; number < static_cast<int>(kLimit); ++number) ::close(number);
}

off_t logged() {
  struct stat status {};
  return ::fstat(STDERR_FILENO, &status) == 0 ? status.st_size : -1;
}

bool endsBySigterm(const ChildProcess& child) {
  while (child.isRunning()) g_main_context_iteration(nullptr, TRUE);
  return child.exitStatus() == ExitStatus{ExitStatus::Reason::signaled, SIGTERM} && logged() > 0;
}

// No exit codes of a sanitizer are among them.
enum Answer { kStartFailed = 50, kStarted, kLeftChild, kLeftDescriptors, kLogged, kNotEnded };

// A watchdog of a thirtieth of a second, so that a child with one ends at once.
Answer launchWith(int free, bool hasContext, ChildConfiguration configuration) {
  ::close(STDERR_FILENO);
  if (::open("/tmp", O_TMPFILE | O_RDWR, 0600) != STDERR_FILENO) ::_exit(99);
  if (hasContext) g_main_context_default();
  const ChildProcess child(std::move(configuration));
  leave(free);
  const int before = descriptorsInUse();
  ChildProcess(child).launchWithTimeout(1.0 / 30);
  const int after = descriptorsInUse();
  if (child.processIdentifier() > 0) {
    for (int number = 10; number < 20; ++number) ::close(number);  // for the log
    return endsBySigterm(child) ? kStarted : kNotEnded;
  }
  giveBack();
  if (hasChildren()) return kLeftChild;
  if (after != before) return kLeftDescriptors;
  while (g_main_context_iteration(nullptr, FALSE)) {
  }
  return logged() == 0 ? kStartFailed : kLogged;
}

int inItsOwnHost(int free, bool hasContext, const ChildConfiguration& configuration) {
  const pid_t host = ::fork();
  if (host == 0) ::_exit(launchWith(free, hasContext, configuration));
  int status = -1;
  if (::waitpid(host, &status, 0) != host) return -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

// The undefined-behavior sanitizer opens a pipe to look at an object, and ends the host without one.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif

int startedWith(const StandardConnection& stream, int free, bool hasContext) {
  return inItsOwnHost(free, hasContext,
                      {.executable = KZM_CHILD_HELPER,
                       .arguments = {"block"},
                       .standardInput = stream,
                       .standardOutput = stream,
                       .standardError = stream});
}

TEST(FewDescriptors, AChildIsStartedWithItsWatchdogOrNothingHappens) {
  if (kSanitized) GTEST_SKIP() << "left out: the sanitizer needs descriptors itself";
  const FileHandle file = FileHandle::openForReading("/dev/null");
  struct Case {
    const char* why;
    StandardConnection stream;
    int enough;  // free descriptors, with which it starts
  };
  const Case cases[] = {
      {"the host's own streams", InheritedStream{}, 2}, {"null streams", NullStream{}, 2}, {"three files", file, 5}};
  for (const Case& c : cases) {
    for (int free = 0; free < 8; ++free) {
      const int expected = free >= c.enough ? kStarted : kStartFailed;
      EXPECT_EQ(startedWith(c.stream, free, true), expected) << c.why << ", " << free << " free";
      EXPECT_EQ(startedWith(c.stream, free, false), expected) << c.why << ", " << free << " free, no main context";
    }
  }
}

TEST(FewDescriptors, AMissingProgramTakesNoneForTheMainContext) {
  EXPECT_EQ(inItsOwnHost(8, false, {.executable = "/no/such/program"}), kStartFailed);
}

}  // namespace
}  // namespace kzm::tests
