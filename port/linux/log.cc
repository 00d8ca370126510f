// The system log of a Linux desktop: the journal, else syslog, and standard error for a person at the terminal.
#include "port/log.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <glib.h>
#include <string_view>
#include <syslog.h>
#include <unistd.h>

#include "port/never_destroyed.h"
#include "port/standard_error.h"

namespace kzm::port {
namespace {

// Says so if there is no journal on this machine.
bool writeToJournal(std::string_view text) {
  const std::array<GLogField, 3> fields{{{"MESSAGE", text.data(), static_cast<gssize>(text.size())},
                                         {"PRIORITY", "5", -1},
                                         {"SYSLOG_IDENTIFIER", program_invocation_short_name, -1}}};
  return g_log_writer_journald(G_LOG_LEVEL_MESSAGE, fields.data(), fields.size(), nullptr) == G_LOG_WRITER_HANDLED;
}

// Where nothing listens, as in a container, the text would be lost.
void writeToSyslog(std::string_view text) {
  if (::access("/dev/log", F_OK) == 0) ::syslog(LOG_NOTICE, "%.*s", static_cast<int>(text.size()), text.data());
}

// "YYYY-MM-DD HH:MM:SS.mmm name[pid:thread] text", in local time. What does not fit is cut.
void writeDatedLine(std::string_view text) {
  timespec now{};
  tm local{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  ::localtime_r(&now.tv_sec, &local);
  std::array<char, 32> date{};
  std::strftime(date.data(), date.size(), "%Y-%m-%d %H:%M:%S", &local);
  constexpr long kNanosecondsPerMillisecond = 1'000'000;
  std::array<char, 1024> line{};
  std::snprintf(line.data(), line.size() - 1, "%s.%03ld %s[%d:%d] %.*s", date.data(),
                now.tv_nsec / kNanosecondsPerMillisecond, program_invocation_short_name, static_cast<int>(::getpid()),
                static_cast<int>(::gettid()), static_cast<int>(text.size()), text.data());
  const std::size_t length = std::strlen(line.data());
  line[length] = '\n';
  writeToStandardError({line.data(), length + 1});
}

class SystemLog final : public Log {
 public:
  void write(std::string_view text) noexcept override {
    const bool inJournal = writeToJournal(text);
    if (!inJournal) writeToSyslog(text);
    const bool errorsGoToJournal = g_log_writer_is_journald(STDERR_FILENO) != FALSE;
    if (!inJournal || !errorsGoToJournal) writeDatedLine(text);
  }
};

}  // namespace

Log& systemLog() {
  static NeverDestroyed<SystemLog> log;
  return *log;
}

}  // namespace kzm::port
