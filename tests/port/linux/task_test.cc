// The start of a program on a kernel that has no descriptors for processes, and what one that has ended reports.
#include "port/task.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <memory>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kzm::port {
namespace {

// From now on this process's kernel has no pidfd_open.
bool forgetPidfdOpen() {
  sock_filter steps[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_pidfd_open, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog program{std::size(steps), steps};
  return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

int descriptors() {
  int count = 0;
  for (int number = 0; number < 256; ++number) count += ::fcntl(number, F_GETFD) >= 0 ? 1 : 0;
  return count;
}

enum Answer { kAsItShouldBe, kNoFilter, kStarted, kLeftChild, kLeftDescriptor };

Answer startWithoutPidfds() {
  if (!forgetPidfdOpen()) return kNoFilter;
  const int before = descriptors();
  if (start({.executable = "/bin/true"}) != nullptr) return kStarted;
  if (::waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD) return kLeftChild;
  return descriptors() == before ? kAsItShouldBe : kLeftDescriptor;
}

TEST(Task, DoesNotStartWhereAProcessCannotBeWatched) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(startWithoutPidfds());
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), kAsItShouldBe);
}

TEST(Task, SaysHowItsProgramEndedAsOftenAsItIsAsked) {
  const std::unique_ptr<Task> task = start({.executable = "/bin/false"});
  ASSERT_NE(task, nullptr);
  pollfd ended{task->exitDescriptor(), POLLIN, 0};
  ASSERT_EQ(::poll(&ended, 1, 10'000), 1);
  constexpr ExitStatus kFailed{ExitStatus::Reason::exited, 1};
  EXPECT_EQ(task->collect(), kFailed);
  EXPECT_EQ(task->collect(), kFailed);
}

}  // namespace
}  // namespace kzm::port
