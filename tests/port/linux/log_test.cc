#include "port/log.h"

#include <cerrno>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <KZMUtilities/process.h>

#include "tests/support/processes.h"

namespace kzm::port {
namespace {

struct Logged {
  std::string line;
  pid_t process;
};

// What a process of its own writes to standard error.
Logged logged(const std::string& text) {
  const Pipe errors;
  const pid_t host = ::fork();
  if (host == 0) {
    ::dup2(errors.writingEnd().descriptor(), STDERR_FILENO);
    systemLog().write(text);
    ::_exit(0);
  }
  errors.writingEnd().close();
  const std::string line = tests::readAll(errors.readingEnd().descriptor());
  ::waitpid(host, nullptr, 0);
  return {line, host};
}

// In milliseconds since 1970; the zone of the tests is UTC.
std::int64_t momentIn(const std::smatch& parts) {
  tm fields{};
  EXPECT_NE(::strptime(parts.str(1).c_str(), "%Y-%m-%d %H:%M:%S", &fields), nullptr);
  return std::int64_t{::timegm(&fields)} * 1000 + std::stol(parts.str(2));
}

std::int64_t millisecondsNow() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

TEST(SystemLog, ALineSaysWhenAndWhoWroteIt) {
  const std::int64_t before = millisecondsNow();
  const Logged found = logged("a text of 100%");
  const std::int64_t after = millisecondsNow();
  static const std::regex kLine(R"(([0-9-]{10} [0-9:]{8})\.([0-9]{3}) (\S+)\[([0-9]+):([0-9]+)\] a text of 100%\n)");
  std::smatch parts;
  ASSERT_TRUE(std::regex_match(found.line, parts, kLine)) << found.line;
  EXPECT_GE(momentIn(parts), before);
  EXPECT_LE(momentIn(parts), after);
  EXPECT_EQ(parts.str(3), program_invocation_short_name);
  EXPECT_EQ(parts.str(4), std::to_string(found.process));
  EXPECT_EQ(parts.str(5), parts.str(4)) << "a process has one thread at first, of the same number";
}

TEST(SystemLog, WhatDoesNotFitIsCut) {
  const std::string line = logged(std::string(5000, 'x')).line;
  EXPECT_EQ(line.size(), 1023U);
  EXPECT_TRUE(line.ends_with("xxx\n"));
}

// Where the machine's logs listen. A process of its own may have other folders in their places.
constexpr const char* kJournal = "/run/systemd/journal/socket";
constexpr const char* kJournalOfErrors = "/run/systemd/journal/stdout";
constexpr const char* kSyslog = "/dev/log";

bool hasEmptyFolders() {
  if (::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         ::mount("none", "/run", "tmpfs", 0, nullptr) == 0 && ::mount("none", "/dev", "tmpfs", 0, nullptr) == 0;
}

sockaddr_un addressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  return address;
}

int listening(const std::string& path, int type) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  const sockaddr_un address = addressOf(path);
  const int descriptor = ::socket(AF_UNIX, type | SOCK_CLOEXEC, 0);
  const bool isBound = ::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  if (type == SOCK_STREAM) ::listen(descriptor, 1);
  return isBound ? descriptor : -1;
}

void connectStandardErrorTo(const std::string& path) {
  const sockaddr_un address = addressOf(path);
  const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  ::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address);
  ::dup2(descriptor, STDERR_FILENO);
}

std::string received(int descriptor) {
  std::string text(4096, '\0');
  const ssize_t size = ::recv(descriptor, text.data(), text.size(), MSG_DONTWAIT);
  return size < 0 ? "" : text.substr(0, static_cast<std::size_t>(size));
}

bool isInJournal(const std::string& entry) {
  const std::string message = std::string("MESSAGE\n\6\0\0\0\0\0\0\0", 16) + "a text\n";
  const std::string name = std::string("SYSLOG_IDENTIFIER=") + program_invocation_short_name + "\n";
  return entry.find(message) != std::string::npos && entry.find("PRIORITY=5\n") != std::string::npos &&
         entry.find(name) != std::string::npos;
}

bool isInSyslog(const std::string& entry) { return entry.starts_with("<13>") && entry.ends_with(": a text"); }

// The statement about a process that has nothing but empty folders.
class SystemLogDeathTest : public testing::Test {
 protected:
  static void expect(bool (*statement)()) {
    constexpr int kCannot = 77;
    EXPECT_EXIT(
        _exit(!hasEmptyFolders() ? kCannot
              : statement()      ? 0
                                 : 1),
        [](int status) { return WIFEXITED(status) && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == kCannot); },
        "");
  }
};

TEST_F(SystemLogDeathTest, TheJournalAndAPersonGetIt) {
  expect([] {
    const int journal = listening(kJournal, SOCK_DGRAM);
    const int syslog = listening(kSyslog, SOCK_DGRAM);
    const Pipe errors;
    ::dup2(errors.writingEnd().descriptor(), STDERR_FILENO);
    systemLog().write("a text");
    char line[64] = {};
    return isInJournal(received(journal)) && received(syslog).empty() &&
           ::read(errors.readingEnd().descriptor(), line, sizeof line) > 0;
  });
}

TEST_F(SystemLogDeathTest, TheJournalGetsItOnceWhereItGetsTheErrors) {
  expect([] {
    const int journal = listening(kJournal, SOCK_DGRAM);
    const int errors = listening(kJournalOfErrors, SOCK_STREAM);
    connectStandardErrorTo(kJournalOfErrors);
    const int accepted = ::accept(errors, nullptr, nullptr);
    systemLog().write("a text");
    return accepted >= 0 && isInJournal(received(journal)) && received(accepted).empty();
  });
}

TEST_F(SystemLogDeathTest, WithoutAJournalSyslogAndAPersonGetIt) {
  expect([] {
    const int syslog = listening(kSyslog, SOCK_DGRAM);
    const Pipe errors;
    ::dup2(errors.writingEnd().descriptor(), STDERR_FILENO);
    systemLog().write("a text");
    char line[64] = {};
    return isInSyslog(received(syslog)) && ::read(errors.readingEnd().descriptor(), line, sizeof line) > 0;
  });
}

}  // namespace
}  // namespace kzm::port
