// The system log, where an administrator looks for messages of programs.
#ifndef KZM_PORT_LOG_H
#define KZM_PORT_LOG_H

#include <string_view>

namespace kzm::port {

class Log {
 public:
  Log() = default;
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;
  virtual ~Log() = default;

  /// Writes one line of text. Safe on any thread. Takes no memory and waits for nobody, for what follows must be done.
  virtual void write(std::string_view text) noexcept = 0;
};

/// The journal, or syslog where there is none, and standard error. Never destroyed.
[[nodiscard]] Log& systemLog();

}  // namespace kzm::port

#endif
