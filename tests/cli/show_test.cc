// The real program on the real machine: only what holds on every machine is asked for.
#include <gtest/gtest.h>
#include <string>
#include <sys/ioctl.h>
#include <utility>
#include <vector>

#include "tests/cli/program.h"

namespace kzm::tests {
namespace {

std::size_t countOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(Show, OneTopicOnce) {
  const Outcome memory = run({"show", "memory"});
  EXPECT_TRUE(memory.output.starts_with("Memory ")) << memory.output;
  EXPECT_NE(memory.output.find("\n  main "), std::string::npos);
  EXPECT_EQ(memory.output.find('\x1b'), std::string::npos) << "no escape sequences for a pipe";
  EXPECT_EQ(memory.errors, "");
  EXPECT_EQ(memory.status, 0);
}

TEST(Show, TheNetworkWithItsUnits) {
  const Outcome bits = run({"show", "network", "--bits", "--all", "--interval", "0.1"});
  EXPECT_EQ(bits.status, 0);
  EXPECT_NE(bits.output.find("b/s"), std::string::npos) << bits.output;
  EXPECT_EQ(bits.output.find("B/s"), std::string::npos) << bits.output;
  const Outcome brief = run({"show", "network", "--unit-size=1", "--all", "--interval", "0.1"});
  EXPECT_EQ(brief.output.find("/s"), std::string::npos) << brief.output;
}

TEST(Show, AnInterfaceByName) {
  const Outcome lo = run({"show", "network", "--interface", "lo", "--interval", "0.1"});
  EXPECT_EQ(lo.status, 0) << lo.errors;
  EXPECT_EQ(countOf(lo.output, "\n"), 2U) << "heading and one line: " << lo.output;
  const Outcome none = run({"show", "network", "--interface", "lo", "--interface", "nosuch0"});
  EXPECT_EQ(none.status, 2);
  EXPECT_EQ(none.output, "");
  EXPECT_TRUE(none.errors.starts_with("kzmutil: show: no interface \"nosuch0\"; there are ")) << none.errors;
  EXPECT_EQ(countOf(none.errors, "\n"), 1U);
}

TEST(Show, EverythingWithoutATopic) {
  const Outcome all = run({"show", "--interval", "0.1"});
  EXPECT_EQ(all.status, 0);
  for (const char* title : {"Memory ", "\n\nLoad\n"}) EXPECT_NE(all.output.find(title), std::string::npos) << title;
  EXPECT_EQ(all.output.find("  –\n"), std::string::npos) << "what the machine lacks is left out";
}

TEST(Monitor, EndsAfterTheCount) {
  const Outcome outcome = run({"monitor", "memory", "--interval", "0.1", "--count", "3"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(countOf(outcome.output, "Memory "), 3U);
  EXPECT_EQ(countOf(outcome.output, "\n\nMemory "), 2U) << "an empty line between two";
  EXPECT_EQ(outcome.output.find('\x1b'), std::string::npos);
}

TEST(Monitor, EndsCleanlyBySignal) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
    Pipe out;
    const pid_t process =
        started({"monitor", "memory", "--interval", "3600"}, STDIN_FILENO, out.writer(), STDERR_FILENO);
    out.closeWriter();
    std::string text;
    ASSERT_TRUE(readSome(out.reader(), text));
    ::kill(process, signal);
    EXPECT_EQ(statusOf(process), 0) << signal;
  }
}

TEST(Monitor, EndsWhenNobodyReadsLongBeforeTheNextDrawing) {
  Pipe out;
  const pid_t process = started({"monitor", "memory", "--interval", "3600"}, STDIN_FILENO, out.writer(), STDERR_FILENO);
  out.closeWriter();
  std::string text;
  ASSERT_TRUE(readSome(out.reader(), text));
  out.closeReader();
  EXPECT_EQ(statusOf(process), 1);
}

TEST(Monitor, EndsAtADrawingThatNobodyReads) {
  Pipe out;
  out.closeReader();
  EXPECT_EQ(statusOf(started({"monitor", "memory", "--interval", "0.1"}, STDIN_FILENO, out.writer(), STDERR_FILENO)),
            1);
}

// A terminal of our own.
class Terminal {
 public:
  Terminal(unsigned short rows, unsigned short columns) : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    if (::grantpt(master_) != 0 || ::unlockpt(master_) != 0) return;
    slave_ = ::open(::ptsname(master_), O_RDWR | O_NOCTTY | O_CLOEXEC);
    resize(rows, columns);
  }
  /// False where the system has no terminals to give.
  [[nodiscard]] bool isThere() const { return slave_ >= 0; }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    ::close(master_);
    ::close(slave_);
  }
  void resize(unsigned short rows, unsigned short columns) const {
    const winsize size{rows, columns, 0, 0};
    ::ioctl(master_, TIOCSWINSZ, &size);
  }
  [[nodiscard]] int end() const { return slave_; }
  /// Reads until the text is there.
  [[nodiscard]] bool saw(const std::string& wanted) {
    while (seen_.find(wanted) == std::string::npos) {
      if (!readSome(master_, seen_)) return false;
    }
    return true;
  }
  [[nodiscard]] std::string take() { return std::exchange(seen_, {}); }

 private:
  int master_;
  int slave_ = -1;
  std::string seen_;
};

TEST(Monitor, RedrawsInPlaceOnATerminalAndGivesTheCursorBack) {
  Terminal terminal(24, 60);
  if (!terminal.isThere()) GTEST_SKIP() << "left out: there are no terminals, as /dev/pts is not mounted";
  const pid_t process =
      started({"monitor", "memory", "--interval", "3600"}, STDIN_FILENO, terminal.end(), STDERR_FILENO);
  ASSERT_TRUE(terminal.saw("\x1b[J"));
  const std::string first = terminal.take();
  EXPECT_TRUE(first.starts_with("\x1b[?25l\x1b[H\x1b[2J\x1b[1mMemory\x1b[0m")) << first;
  EXPECT_NE(first.find("…"), std::string::npos) << "cut at 60 columns";
  terminal.resize(24, 200);
  ::kill(process, SIGWINCH);
  ASSERT_TRUE(terminal.saw("\x1b[J"));
  const std::string second = terminal.take();
  EXPECT_TRUE(second.starts_with("\x1b[H\x1b[1mMemory")) << second;
  EXPECT_EQ(second.find("…"), std::string::npos) << "room enough";
  ::kill(process, SIGTERM);
  EXPECT_EQ(statusOf(process), 0);
  EXPECT_TRUE(terminal.saw("\x1b[?25h"));
}

TEST(Monitor, GivesTheCursorBackAfterEverySignalThatEndsIt) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
    Terminal terminal(24, 60);
    if (!terminal.isThere()) GTEST_SKIP() << "left out: there are no terminals, as /dev/pts is not mounted";
    const pid_t process =
        started({"monitor", "memory", "--interval", "3600"}, STDIN_FILENO, terminal.end(), STDERR_FILENO);
    ASSERT_TRUE(terminal.saw("\x1b[J"));
    ::kill(process, signal);
    EXPECT_EQ(statusOf(process), 0) << signal;
    EXPECT_TRUE(terminal.saw("\x1b[?25h")) << signal;
  }
}

TEST(Monitor, IsCutToTheHeightOfTheTerminal) {
  Terminal terminal(4, 200);
  if (!terminal.isThere()) GTEST_SKIP() << "left out: there are no terminals, as /dev/pts is not mounted";
  const pid_t process = started({"monitor", "--no-color", "--interval", "0.1", "--count", "1"}, STDIN_FILENO,
                                terminal.end(), STDERR_FILENO);
  EXPECT_EQ(statusOf(process), 0);
  ASSERT_TRUE(terminal.saw("\x1b[?25h"));
  const std::string text = terminal.take();
  EXPECT_EQ(countOf(text, "\n"), 3U) << text;
  EXPECT_NE(text.find("… +"), std::string::npos) << text;
  EXPECT_EQ(text.find("\x1b[1m"), std::string::npos) << "no styles";
}

}  // namespace
}  // namespace kzm::tests
