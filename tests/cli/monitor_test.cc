// The real program on a terminal.
#include <csignal>
#include <gtest/gtest.h>
#include <regex>
#include <string>
#include <vector>

#include "tests/cli/program.h"
#include "tests/cli/terminal.h"
#include "tests/support/kernel_files.h"

namespace kzm::tests {
namespace {

const std::string kEnter = "\x1b[?1049h\x1b[?25l\x1b[?7l\x1b[?1000h\x1b[?1006h";
const std::string kLeave = "\x1b[0m\x1b[?1006l\x1b[?1000l\x1b[?7h\x1b[?25h\x1b[?1049l";
const std::string kClear = "\x1b[2J";

class OnTerminal : public testing::Test {
 protected:
  void SetUp() override {
    if (!terminal.isThere()) GTEST_SKIP() << "left out: there are no terminals, as /dev/pts is not mounted";
  }
  void start(std::vector<std::string> words, std::vector<std::string> variables = {}) {
    words.insert(words.begin(), {"monitor", "--interval", "3600"});
    process = started(words, terminal.end(), terminal.end(), STDERR_FILENO, std::move(variables));
    ASSERT_TRUE(terminal.saw("Help")) << "the last line of the first frame";
  }
  // It has ended and left the terminal as it was.
  void expectEnd(int status) {
    EXPECT_EQ(statusOf(process), status);
    EXPECT_TRUE(terminal.saw(kLeave));
    EXPECT_TRUE(terminal.isUsual());
  }

  Terminal terminal{24, 80};
  pid_t process = -1;
};

TEST_F(OnTerminal, HasAScreenOfItsOwn) {
  start({"memory"});
  const std::string first = terminal.take();
  EXPECT_TRUE(first.starts_with(kEnter + "\x1b[0m" + kClear)) << first;
  EXPECT_NE(first.find("\x1b[0;1m?"), std::string::npos) << first;
  EXPECT_EQ(first.find('\n'), std::string::npos) << "nothing scrolls";
  EXPECT_FALSE(terminal.isUsual());
  terminal.type("q");
  expectEnd(0);
}

TEST_F(OnTerminal, GivesTheTerminalBackAfterEverySignalThatEndsIt) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
    start({"memory"});
    ::kill(process, signal);
    expectEnd(0);
    terminal.take();
  }
}

TEST_F(OnTerminal, GivesTheTerminalBackAfterAFault) {
  start({"memory"});
  ::kill(process, SIGABRT);
  expectEnd(-SIGABRT);
}

TEST_F(OnTerminal, LeavesTheTerminalToTheShellWhileItIsStopped) {
  start({"memory"});
  ::kill(process, SIGTSTP);
  ASSERT_TRUE(terminal.saw(kLeave));
  int status = 0;
  ASSERT_EQ(::waitpid(process, &status, WUNTRACED), process);
  EXPECT_TRUE(WIFSTOPPED(status));
  EXPECT_TRUE(terminal.isUsual());
  terminal.take();
  ::kill(process, SIGCONT);
  ASSERT_TRUE(terminal.saw("Help"));
  EXPECT_TRUE(terminal.take().starts_with(kEnter + "\x1b[0m" + kClear)) << "all of it is drawn again";
  terminal.type("q");
  expectEnd(0);
}

TEST_F(OnTerminal, FollowsTheSizeAtOnce) {
  start({"memory"});
  terminal.take();
  terminal.resize(12, 40);
  ::kill(process, SIGWINCH);
  ASSERT_TRUE(terminal.saw("Help"));
  const std::string text = terminal.take();
  EXPECT_NE(text.find(kClear), std::string::npos) << text;
  EXPECT_NE(text.find("\x1b[12;1H"), std::string::npos) << "the new last line";
  terminal.type("q");
  expectEnd(0);
}

TEST_F(OnTerminal, WritesOnlyWhatChanges) {
  start({"memory"});
  terminal.take();
  terminal.type("?");
  ASSERT_TRUE(terminal.saw("PgDn"));
  EXPECT_EQ(terminal.take().find("±"), std::string::npos) << "the last line stays";
  terminal.type("\x1b-");
  ASSERT_TRUE(terminal.saw("± 9")) << "900 seconds instead of 3,600; its zeros were there already";
  terminal.type("q");
  expectEnd(0);
}

TEST_F(OnTerminal, EndsAfterTheCount) {
  start({"memory", "--count", "1"});
  expectEnd(0);
}

TEST_F(OnTerminal, NeedsNoKeyboard) {
  Pipe nothing;
  process = started({"monitor", "memory", "--interval", "3600"}, nothing.reader(), terminal.end(), STDERR_FILENO);
  ASSERT_TRUE(terminal.saw("Help"));
  ::kill(process, SIGTERM);
  expectEnd(0);
}

struct DressCase {
  std::vector<std::string> words;
  std::vector<std::string> variables;
  bool colors;
  bool bold;
};

TEST_F(OnTerminal, ColorsAreTheUsersChoice) {
  if (!kernelFilesAreThere()) GTEST_SKIP() << "left out: there is no load to color, as /proc is not mounted";
  const DressCase cases[] = {
      {{"load", "--count", "1"}, {}, true, true},
      {{"load", "--count", "1"}, {"NO_COLOR=1"}, false, true},
      {{"load", "--count", "1", "--no-color"}, {}, false, false},
  };
  for (const DressCase& row : cases) {
    start(row.words, row.variables);
    expectEnd(0);
    const std::string text = terminal.take();
    EXPECT_EQ(std::regex_search(text, std::regex(";3[1-6]m")), row.colors) << text;
    EXPECT_EQ(text.find("\x1b[0;1") != std::string::npos, row.bold) << text;
  }
}

}  // namespace
}  // namespace kzm::tests
