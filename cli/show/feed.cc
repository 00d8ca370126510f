#include "cli/show/feed.h"

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <system_error>
#include <unistd.h>

#include "cli/terminal/writing.h"
#include "machine/rates.h"

namespace kzm::cli {
namespace {

// The size of a terminal is nothing to lines, and a stop is only put off.
bool ends(int signal) {
  if (signal == SIGTSTP) ::kill(::getpid(), SIGSTOP);
  return signal != 0 && signal != SIGTSTP && signal != SIGWINCH;
}

}  // namespace

bool Feed::waited(double seconds) {
  while (machine::secondsNow() < seconds) {
    pollfd watched[] = {{signals_.descriptor(), POLLIN, 0}, {STDOUT_FILENO, 0, 0}};
    const int count = ::poll(watched, 2, millisecondsUntil(seconds));
    if (count < 0 && errno != EINTR) throw std::system_error(errno, std::generic_category(), "standard output");
    if (count <= 0) continue;
    readerHasLeft_ = watched[1].revents != 0;
    if (readerHasLeft_ || ends(signals_.take())) return false;
  }
  return true;
}

bool Feed::write(std::string_view text) {
  readerHasLeft_ = readerHasLeft_ || !writtenAll(text);
  return !readerHasLeft_;
}

}  // namespace kzm::cli
