#include "cli/terminal/writing.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <poll.h>
#include <system_error>
#include <unistd.h>

#include "machine/rates.h"

namespace kzm::cli {

bool writtenAll(std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(STDOUT_FILENO, text.data(), text.size());
    if (count >= 0) {
      text.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno == EPIPE) {
      return false;
    } else if (errno == EAGAIN) {
      pollfd output{STDOUT_FILENO, POLLOUT, 0};
      ::poll(&output, 1, -1);
    } else if (errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), "standard output");
    }
  }
  return true;
}

int millisecondsUntil(double seconds) {
  constexpr double kMillisecondsPerSecond = 1e3;
  constexpr double kMostMilliseconds = 3.6e6;
  return static_cast<int>(
      std::clamp(std::ceil((seconds - machine::secondsNow()) * kMillisecondsPerSecond), 0.0, kMostMilliseconds));
}

}  // namespace kzm::cli
