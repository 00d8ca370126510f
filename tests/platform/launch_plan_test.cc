#include "platform/launch_plan.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "tests/support/child_fixture.h"

namespace kzm::tests {
namespace {

using LaunchTest = ChildTest;
using namespace std::string_literals;
using Environment = std::map<std::string, std::string>;

// A file of its own in the test's temporary folder.
std::string makeFile(const std::string& name, const std::string& content, bool executable) {
  std::string path = testing::TempDir() + "kzm_" + std::to_string(::getpid()) + "_" + name;
  std::ofstream(path) << content;
  using std::filesystem::perms;
  std::filesystem::permissions(path, executable ? perms::owner_all : perms::owner_read | perms::owner_write);
  return path;
}

TEST_F(LaunchTest, FailsForWhatCannotBeStarted) {
  Pipe closed;
  closed.readingEnd().close();
  closed.writingEnd().close();
  const std::string helperPath = KZM_CHILD_HELPER;
  struct Case {
    const char* why;
    ChildConfiguration configuration;
  };
  const Case cases[] = {
      {"nothing is configured", {}},
      {"missing", {.executable = "/no/such/program"}},
      {"a directory", {.executable = "/tmp"}},
      {"a device", {.executable = "/dev/null"}},
      {"not executable", {.executable = makeFile("plain", "#!/bin/sh\n", false)}},
      {"no program at all", {.executable = makeFile("text", "exit 0\n", true)}},
      {"a missing interpreter", {.executable = makeFile("script", "#!/no/such/shell\n", true)}},
      {"a name without a path is not searched for", {.executable = "true"}},
      {"a zero byte in the path", {.executable = helperPath + "\0x"s}},
      {"a zero byte in an argument", {.executable = helperPath, .arguments = {"ok", "a\0b"s}}},
      {"an endless argument", {.executable = helperPath, .arguments = {std::string(std::size_t{1} << 20, 'x')}}},
      {"a missing directory", {.executable = helperPath, .workingDirectory = "/no/such/folder"}},
      {"a zero byte in the directory", {.executable = helperPath, .workingDirectory = "/tmp\0x"s}},
      {"a variable without a name", {.executable = helperPath, .environment = Environment{{"", "x"}}}},
      {"a name with an equals sign", {.executable = helperPath, .environment = Environment{{"A=B", "x"}}}},
      {"a zero byte in a variable", {.executable = helperPath, .environment = Environment{{"A", "x\0y"s}}}},
      {"a closed input", {.executable = helperPath, .standardInput = closed}},
      {"a closed output", {.executable = helperPath, .standardOutput = FileHandle()}},
      {"a closed error stream", {.executable = helperPath, .standardError = FileHandle::openForReading("/no/such")}},
  };
  for (const Case& c : cases) {
    const std::ptrdiff_t descriptors = openDescriptors();
    EXPECT_FALSE(make(c.configuration)->launch()) << c.why;
    EXPECT_EQ(openDescriptors(), descriptors) << c.why;
    EXPECT_FALSE(hasChildren()) << c.why;
  }
  EXPECT_EQ(queue_.watches(), 0U);
}

TEST_F(LaunchTest, HandsOverArgumentsAsTheyAre) {
  EXPECT_EQ(outputOf({.arguments = {"arguments", "", "two words", "ä\n$HOME"}}),
            KZM_CHILD_HELPER "\narguments\n\ntwo words\nä\n$HOME\n");
}

TEST_F(LaunchTest, GivesTheHostsEnvironmentOrExactlyTheOneSet) {
  EXPECT_EQ(outputOf({.arguments = {"environment"}, .environment = Environment{{"B", ""}, {"A", "1=2"}}}),
            "A=1=2\nB=\n");
  EXPECT_EQ(outputOf({.arguments = {"environment"}, .environment = Environment{}}), "");
  EXPECT_NE(outputOf({.arguments = {"environment"}}).find("TZ="), std::string::npos);
}

TEST_F(LaunchTest, TakesTheWorkingDirectoryAndARelativeProgramFromTheHosts) {
  EXPECT_EQ(outputOf({.arguments = {"directory"}, .workingDirectory = "/"}), "/\n");
  EXPECT_EQ(outputOf({.arguments = {"directory"}}), std::filesystem::current_path().string() + "\n");
  const std::string relative = std::filesystem::relative(KZM_CHILD_HELPER).string();
  EXPECT_EQ(outputOf({.executable = relative, .arguments = {"directory"}, .workingDirectory = "/"}), "/\n");
  EXPECT_EQ(outputOf({.executable = relative, .arguments = {"arguments"}}), relative + "\narguments\n");
}

TEST_F(LaunchTest, GivesACleanSlate) {
  const int leaky = ::open("/dev/null", O_RDONLY);  // NOLINT: on purpose not close-on-exec
  const int high = ::fcntl(leaky, F_DUPFD, 900);
  const auto before = std::signal(SIGPIPE, SIG_IGN);
  sigset_t blocked;
  sigset_t old;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  sigaddset(&blocked, SIGUSR1);
  pthread_sigmask(SIG_BLOCK, &blocked, &old);
  EXPECT_EQ(outputOf({.arguments = {"descriptors", "signals", "group"}}), "0 1 2\nunusual\nleader\n");
  pthread_sigmask(SIG_SETMASK, &old, nullptr);
  std::signal(SIGPIPE, before);
  ::close(leaky);
  ::close(high);
}

TEST_F(LaunchTest, ConnectsPipesAndClosesTheChildsEnds) {
  const Pipe input;
  const Pipe output;
  const Pipe errors;
  const SharedChild child = make({.executable = KZM_CHILD_HELPER,
                                  .arguments = {"complain", "echo"},
                                  .standardInput = input,
                                  .standardOutput = output,
                                  .standardError = errors});
  ASSERT_TRUE(child->launch());
  EXPECT_FALSE(input.readingEnd().isOpen());
  EXPECT_FALSE(output.writingEnd().isOpen());
  EXPECT_FALSE(errors.writingEnd().isOpen());
  ASSERT_EQ(::write(input.writingEnd().descriptor(), "hello", 5), 5);
  input.writingEnd().close();
  EXPECT_EQ(readAll(output.readingEnd().descriptor()), "hello");
  EXPECT_EQ(readAll(errors.readingEnd().descriptor()), "complaint\n");
  finish(*child);
}

TEST_F(LaunchTest, TwoStreamsMayShareAPipe) {
  const Pipe both;
  const SharedChild child = make({.executable = KZM_CHILD_HELPER,
                                  .arguments = {"complain", "ready"},
                                  .standardOutput = both,
                                  .standardError = both});
  ASSERT_TRUE(child->launch());
  EXPECT_EQ(readAll(both.readingEnd().descriptor()), "complaint\nready\n");
  finish(*child);
}

TEST_F(LaunchTest, APipeMayLeadFromChildToChild) {
  const Pipe between;
  const Pipe output;
  const SharedChild source = talkingHelper({"ready"}, between);
  const SharedChild sink =
      make({.executable = KZM_CHILD_HELPER, .arguments = {"echo"}, .standardInput = between, .standardOutput = output});
  ASSERT_TRUE(sink->launch());
  ASSERT_TRUE(source->launch());
  EXPECT_EQ(readAll(output.readingEnd().descriptor()), "ready\n");
  finish(*source);
  finish(*sink);
}

TEST_F(LaunchTest, ConnectsFilesAndNothing) {
  const std::string path = makeFile("input", "from a file", false);
  const std::string written = path + ".out";
  const FileHandle output = FileHandle::openForWriting(written);
  const SharedChild child = make({.executable = KZM_CHILD_HELPER,
                                  .arguments = {"echo", "complain"},
                                  .standardInput = FileHandle::openForReading(path),
                                  .standardOutput = output,
                                  .standardError = NullStream{}});
  ASSERT_TRUE(child->launch());
  finish(*child);
  EXPECT_TRUE(output.isOpen()) << "a file is the host's and stays open";
  EXPECT_EQ(readAll(FileHandle::openForReading(written).descriptor()), "from a file");
  EXPECT_EQ(outputOf({.arguments = {"echo", "descriptors"}, .standardInput = NullStream{}}), "0 1 2\n");
}

TEST_F(LaunchTest, StreamsThatSwapNumbersDoNotOverwriteOneAnother) {
  const FileHandle standardOutput = FileHandle::adopt(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 10));
  const SharedChild child = make({.executable = KZM_CHILD_HELPER,
                                  .arguments = {"descriptors"},
                                  .standardOutput = standardOutput,
                                  .standardError = standardOutput});
  ASSERT_TRUE(child->launch());
  finish(*child);
  EXPECT_EQ(child->exitStatus(), (ExitStatus{Reason::exited, 0}));
}

}  // namespace
}  // namespace kzm::tests
