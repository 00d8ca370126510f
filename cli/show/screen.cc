#include "cli/show/screen.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <poll.h>
#include <string_view>
#include <sys/ioctl.h>
#include <sys/signalfd.h>
#include <system_error>
#include <unistd.h>

#include "machine/rates.h"
#include "port/environment.h"

namespace kzm::cli {
namespace {

constexpr std::string_view kHideCursor = "\x1b[?25l";
constexpr std::string_view kShowCursor = "\x1b[?25h";
constexpr std::string_view kHome = "\x1b[H";
constexpr std::string_view kClear = "\x1b[H\x1b[2J";
constexpr std::string_view kClearLine = "\x1b[K";
constexpr std::string_view kClearBelow = "\x1b[J";

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGWINCH, SIGTSTP};

sigset_t signalSet() {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : kSignals) sigaddset(&set, signal);
  return set;
}

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

// False when nobody reads any more.
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
      fail("standard output");
    }
  }
  return true;
}

bool hasValue(const char* variable) {
  const char* value = port::processEnvironment(variable);
  return value != nullptr && *value != '\0';
}

winsize sizeOfTerminal() {
  winsize size{};
  if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return {};
  return size;
}

// What does not fit is replaced by their count at the end; the last line of the terminal stays free for the cursor.
void cutToHeight(std::vector<std::string>& lines) {
  const std::size_t height = sizeOfTerminal().ws_row;
  if (height < 3 || lines.size() < height) return;
  const std::size_t hidden = lines.size() - (height - 2);
  lines.resize(height - 2);
  lines.push_back("… +" + std::to_string(hidden));
}

}  // namespace

bool writesToTerminal() {
  const char* kind = port::processEnvironment("TERM");
  const bool isDumb = kind != nullptr && std::string_view(kind) == "dumb";
  return ::isatty(STDOUT_FILENO) == 1 && !isDumb;
}

Look lookOfOutput(bool plain) {
  Look look;
  if (!writesToTerminal()) return look;
  look.styles = !plain && !hasValue("NO_COLOR");
  if (const winsize size = sizeOfTerminal(); size.ws_col > 0) look.columns = size.ws_col;
  return look;
}

Screen::Screen() : terminal_(writesToTerminal()) {
  const sigset_t set = signalSet();
  ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
  signals_ = port::Descriptor(::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
  if (!signals_.isOpen()) fail("signals");
  if (terminal_) terminal_ = write(kHideCursor);
}

Screen::~Screen() {
  try {
    if (terminal_) write(kShowCursor);
  } catch (const std::system_error&) {
    terminal_ = false;  // it is gone, and its cursor with it
  }
}

bool Screen::write(std::string_view text) {
  readerHasLeft_ = readerHasLeft_ || !writtenAll(text);
  return !readerHasLeft_;
}

// A stopped program leaves the cursor to the shell.
Screen::Event Screen::signaled() {
  signalfd_siginfo info{};
  if (::read(signals_.number(), &info, sizeof info) != static_cast<ssize_t>(sizeof info)) return Event::resized;
  if (info.ssi_signo == SIGWINCH) return Event::resized;
  if (info.ssi_signo != SIGTSTP) return Event::ended;
  if (terminal_ && !write(kShowCursor)) return Event::ended;
  ::kill(::getpid(), SIGSTOP);
  drawn_ = false;
  return terminal_ && !write(kHideCursor) ? Event::ended : Event::resized;
}

Screen::Event Screen::wait(double seconds) {
  constexpr double kMilliseconds = 1e3;
  for (;;) {
    const double left = seconds - machine::secondsNow();
    if (left <= 0) return Event::due;
    pollfd watched[] = {{signals_.number(), POLLIN, 0}, {STDOUT_FILENO, 0, 0}};
    const int count = ::poll(watched, 2, static_cast<int>(std::ceil(left * kMilliseconds)));
    if (count < 0 && errno != EINTR) fail("standard output");
    if (count <= 0) continue;
    if (watched[0].revents != 0) return signaled();
    readerHasLeft_ = true;
    return Event::ended;
  }
}

bool Screen::draw(std::vector<std::string> lines) {
  if (terminal_) cutToHeight(lines);
  std::string text(terminal_ ? (drawn_ ? kHome : kClear) : std::string_view(drawn_ ? "\n" : ""));
  for (const std::string& line : lines) {
    text += line;
    if (terminal_) text += kClearLine;
    text += "\n";
  }
  if (terminal_) text += kClearBelow;
  drawn_ = true;
  return write(text);
}

}  // namespace kzm::cli
