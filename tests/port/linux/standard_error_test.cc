#include "port/standard_error.h"

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include <KZMUtilities/process.h>

#include "port/log.h"

namespace kzm::port {
namespace {

// Makes the pipe's writing end the standard error of a process of its own, with SIGPIPE as the system has it.
int inItsOwnHost(const Pipe& errors, const std::function<int()>& act) {
  const pid_t host = ::fork();
  if (host == 0) {
    std::signal(SIGPIPE, SIG_DFL);
    ::dup2(errors.writingEnd().descriptor(), STDERR_FILENO);
    errors.writingEnd().close();
    ::_exit(act());
  }
  int status = -1;
  if (::waitpid(host, &status, 0) != host) return -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

TEST(StandardError, ALineArrivesWhole) {
  const Pipe errors;
  EXPECT_EQ(inItsOwnHost(errors,
                         [] {
                           writeToStandardError("a line\n");
                           return 0;
                         }),
            0);
  char text[64] = {};
  EXPECT_EQ(::read(errors.readingEnd().descriptor(), text, sizeof text), 7);
  EXPECT_STREQ(text, "a line\n");
}

TEST(StandardError, WithoutAReaderNeverEndsTheHost) {
  const Pipe errors;
  EXPECT_EQ(inItsOwnHost(errors,
                         [&] {
                           errors.readingEnd().close();
                           writeToStandardError("lost\n");
                           systemLog().write("lost");
                           return 0;
                         }),
            0);
}

TEST(StandardError, WithAReaderThatDoesNotReadNeverStopsTheHost) {
  const Pipe errors;
  EXPECT_EQ(inItsOwnHost(errors,
                         [] {
                           ::alarm(20);
                           const std::string line(4000, 'x');
                           for (int i = 0; i < 100; ++i) writeToStandardError(line);
                           systemLog().write("lost");
                           return 0;
                         }),
            0);
}

TEST(StandardError, ASigpipeOfTheHostsOwnStaysWithTheHost) {
  const Pipe errors;
  EXPECT_EQ(inItsOwnHost(errors,
                         [&] {
                           errors.readingEnd().close();
                           sigset_t sigpipe;
                           sigemptyset(&sigpipe);
                           sigaddset(&sigpipe, SIGPIPE);
                           ::pthread_sigmask(SIG_BLOCK, &sigpipe, nullptr);
                           std::raise(SIGPIPE);
                           writeToStandardError("lost\n");
                           ::pthread_sigmask(SIG_UNBLOCK, &sigpipe, nullptr);
                           return 0;
                         }),
            -SIGPIPE);
}

}  // namespace
}  // namespace kzm::port
