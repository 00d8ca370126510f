// A terminal of our own.
#ifndef KZM_TESTS_CLI_TERMINAL_H
#define KZM_TESTS_CLI_TERMINAL_H

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

#include "tests/cli/program.h"

namespace kzm::tests {

class Terminal {
 public:
  Terminal(unsigned short rows, unsigned short columns) : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    if (::grantpt(master_) != 0 || ::unlockpt(master_) != 0) return;
    slave_ = ::open(::ptsname(master_), O_RDWR | O_NOCTTY | O_CLOEXEC);
    resize(rows, columns);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    ::close(master_);
    ::close(slave_);
  }
  /// False where the system has no terminals to give.
  [[nodiscard]] bool isThere() const { return slave_ >= 0; }
  [[nodiscard]] int end() const { return slave_; }

  void resize(unsigned short rows, unsigned short columns) const {
    const winsize size{rows, columns, 0, 0};
    ::ioctl(master_, TIOCSWINSZ, &size);
  }
  void type(std::string_view keys) const {
    [[maybe_unused]] const ssize_t count = ::write(master_, keys.data(), keys.size());
  }
  /// Whether what is typed is shown, and comes line by line: as a shell wants it.
  [[nodiscard]] bool isUsual() const {
    termios mode{};
    return ::tcgetattr(slave_, &mode) == 0 && (mode.c_lflag & ECHO) != 0 && (mode.c_lflag & ICANON) != 0;
  }
  /// Reads until the text is there.
  [[nodiscard]] bool saw(const std::string& wanted) {
    while (seen_.find(wanted) == std::string::npos) {
      if (!readSome(master_, seen_)) return false;
    }
    return true;
  }
  /// All that was read since the last time.
  std::string take() { return std::exchange(seen_, {}); }

 private:
  int master_;
  int slave_ = -1;
  std::string seen_;
};

}  // namespace kzm::tests

#endif
