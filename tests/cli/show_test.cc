// The real program on the real machine: only what holds on every machine is asked for.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/cli/program.h"
#include "tests/support/kernel_files.h"

namespace kzm::tests {
namespace {

class Show : public KernelFiles {};
class Monitor : public KernelFiles {};

std::size_t countOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST_F(Show, OneTopicOnce) {
  const Outcome memory = run({"show", "memory"});
  EXPECT_TRUE(memory.output.starts_with("Memory ")) << memory.output;
  EXPECT_NE(memory.output.find("\n  main "), std::string::npos);
  EXPECT_EQ(memory.output.find('\x1b'), std::string::npos) << "no escape sequences for a pipe";
  EXPECT_EQ(memory.errors, "");
  EXPECT_EQ(memory.status, 0);
}

TEST_F(Show, TheNetworkWithItsUnits) {
  const Outcome bits = run({"show", "network", "--bits", "--all", "--interval", "0.1"});
  EXPECT_EQ(bits.status, 0);
  EXPECT_NE(bits.output.find("b/s"), std::string::npos) << bits.output;
  EXPECT_EQ(bits.output.find("B/s"), std::string::npos) << bits.output;
  const Outcome brief = run({"show", "network", "--unit-size=1", "--all", "--interval", "0.1"});
  EXPECT_EQ(brief.output.find("/s"), std::string::npos) << brief.output;
}

TEST_F(Show, AnInterfaceByName) {
  const Outcome lo = run({"show", "network", "--interface", "lo", "--interval", "0.1"});
  EXPECT_EQ(lo.status, 0) << lo.errors;
  EXPECT_EQ(countOf(lo.output, "\n"), 2U) << "heading and one line: " << lo.output;
  const Outcome none = run({"show", "network", "--interface", "lo", "--interface", "nosuch0"});
  EXPECT_EQ(none.status, 2);
  EXPECT_EQ(none.output, "");
  EXPECT_TRUE(none.errors.starts_with("kzmutil: show: no interface \"nosuch0\"; there are ")) << none.errors;
  EXPECT_EQ(countOf(none.errors, "\n"), 1U);
}

TEST_F(Show, EverythingWithoutATopic) {
  const Outcome all = run({"show", "--interval", "0.1"});
  EXPECT_EQ(all.status, 0);
  for (const char* title : {"Memory ", "\n\nLoad\n"}) EXPECT_NE(all.output.find(title), std::string::npos) << title;
  EXPECT_EQ(all.output.find("  –\n"), std::string::npos) << "what the machine lacks is left out";
}

TEST_F(Show, SeveralTopicsInTheOrderOfTheCommandLine) {
  const Outcome two = run({"show", "load", "memory", "load", "--interval", "0.1"});
  EXPECT_EQ(two.status, 0) << two.errors;
  EXPECT_TRUE(two.output.starts_with("Load\n")) << two.output;
  EXPECT_NE(two.output.find("\n\nMemory "), std::string::npos);
  EXPECT_EQ(countOf(two.output, "Load"), 1U) << "each once";
}

TEST_F(Show, ForPrograms) {
  for (const char* output : {"json", "waybar", "polybar", "plain"}) {
    const Outcome once = run({"show", "memory", "load", "--interval", "0.1", "--output", output});
    EXPECT_EQ(once.status, 0) << output << once.errors;
    EXPECT_EQ(countOf(once.output, "\n"), 1U) << output << once.output;
  }
  const auto json = nlohmann::json::parse(run({"--locale", "he_IL", "show", "memory", "--output=json"}).output);
  EXPECT_EQ(json.at("direction"), "rtl");
  EXPECT_EQ(json.at("topics").at(0).at("items").at(0).at("id"), "main");
  const std::string bar = run({"show", "memory", "--output", "i3bar"}).output;
  EXPECT_TRUE(bar.starts_with("{\"version\":1}\n[\n[]\n,[{")) << bar;
  EXPECT_EQ(nlohmann::json::parse(bar.substr(bar.find('\n'))).size(), 2U) << "an array to its end";
}

TEST_F(Monitor, WritesALineAtEachRefreshAndTheEnd) {
  const Outcome lines = run({"monitor", "memory", "--output", "json", "--interval", "0.1", "--count", "3"});
  EXPECT_EQ(lines.status, 0);
  EXPECT_EQ(countOf(lines.output, "{\"direction\""), 3U) << lines.output;
  EXPECT_EQ(countOf(lines.output, "\n"), 3U);
  const Outcome bar = run({"monitor", "memory", "--output", "i3bar", "--interval", "0.1", "--count", "2"});
  EXPECT_EQ(countOf(bar.output, "\n,["), 2U) << bar.output;
  EXPECT_TRUE(bar.output.ends_with("]\n]\n")) << bar.output;
}

TEST_F(Monitor, WhoReadsALineHasAllOfItAtOnce) {
  Pipe out;
  const pid_t process = started({"monitor", "memory", "--output", "plain", "--interval", "3600"}, STDIN_FILENO,
                                out.writer(), STDERR_FILENO);
  out.closeWriter();
  std::string text;
  ASSERT_TRUE(readSome(out.reader(), text));
  EXPECT_TRUE(text.ends_with("\n")) << text;
  out.closeReader();
  EXPECT_EQ(statusOf(process), 1) << "nobody reads any more";
}

TEST_F(Monitor, EndsAfterTheCount) {
  const Outcome outcome = run({"monitor", "memory", "--interval", "0.1", "--count", "3"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(countOf(outcome.output, "Memory "), 3U);
  EXPECT_EQ(countOf(outcome.output, "\n\nMemory "), 2U) << "an empty line between two";
  EXPECT_EQ(outcome.output.find('\x1b'), std::string::npos);
}

TEST_F(Monitor, EndsCleanlyBySignal) {
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

TEST_F(Monitor, EndsWhenNobodyReadsLongBeforeTheNextDrawing) {
  Pipe out;
  const pid_t process = started({"monitor", "memory", "--interval", "3600"}, STDIN_FILENO, out.writer(), STDERR_FILENO);
  out.closeWriter();
  std::string text;
  ASSERT_TRUE(readSome(out.reader(), text));
  out.closeReader();
  EXPECT_EQ(statusOf(process), 1);
}

TEST_F(Monitor, EndsAtADrawingThatNobodyReads) {
  Pipe out;
  out.closeReader();
  EXPECT_EQ(statusOf(started({"monitor", "memory", "--interval", "0.1"}, STDIN_FILENO, out.writer(), STDERR_FILENO)),
            1);
}

}  // namespace
}  // namespace kzm::tests
