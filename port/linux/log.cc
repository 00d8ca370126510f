// The system log of a Linux desktop: the journal, else syslog, and standard error for whoever looks at the terminal.
#include "port/log.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <glib.h>
#include <memory>
#include <sys/uio.h>
#include <syslog.h>
#include <unistd.h>

#include "port/linux/retried.h"

namespace kzm::port {
namespace {

// Says so if there is no journal on this machine.
bool writeToJournal(const std::string& text) {
  const std::array<GLogField, 3> fields{
      {{"MESSAGE", text.c_str(), -1}, {"PRIORITY", "5", -1}, {"SYSLOG_IDENTIFIER", program_invocation_short_name, -1}}};
  return g_log_writer_journald(G_LOG_LEVEL_MESSAGE, fields.data(), fields.size(), nullptr) == G_LOG_WRITER_HANDLED;
}

// Where nothing listens, as in a container, the text would be lost.
void writeToSyslog(const std::string& text) {
  if (::access("/dev/log", F_OK) == 0) ::syslog(LOG_NOTICE, "%s", text.c_str());
}

// "YYYY-MM-DD HH:MM:SS.mmm name[pid:thread] ", in local time.
std::string banner() {
  timespec now{};
  tm local{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  ::localtime_r(&now.tv_sec, &local);
  std::array<char, 32> date{};
  std::strftime(date.data(), date.size(), "%Y-%m-%d %H:%M:%S", &local);
  constexpr long kNanosecondsPerMillisecond = 1'000'000;
  std::array<char, 512> line{};
  std::snprintf(line.data(), line.size(), "%s.%03ld %s[%d:%d] ", date.data(), now.tv_nsec / kNanosecondsPerMillisecond,
                program_invocation_short_name, static_cast<int>(::getpid()), static_cast<int>(::gettid()));
  return line.data();
}

// In one piece, so that the lines of several programs do not mix.
void writeToStandardError(std::string text) {
  std::string head = banner();
  text += '\n';
  const std::array<iovec, 2> parts{{{head.data(), head.size()}, {text.data(), text.size()}}};
  retried([&] { return ::writev(STDERR_FILENO, parts.data(), static_cast<int>(parts.size())); });
}

class SystemLog final : public Log {
 public:
  void write(const std::string& text) override {
    const bool inJournal = writeToJournal(text);
    if (!inJournal) writeToSyslog(text);
    const bool errorsGoToJournal = g_log_writer_is_journald(STDERR_FILENO) != FALSE;
    if (!inJournal || !errorsGoToJournal) writeToStandardError(text);
  }
};

}  // namespace

Log& systemLog() {
  static SystemLog& log = *std::make_unique<SystemLog>().release();
  return log;
}

}  // namespace kzm::port
