#include "cli/terminal/terminal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <string_view>
#include <sys/ioctl.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "cli/terminal/writing.h"
#include "machine/rates.h"
#include "port/environment.h"

namespace kzm::cli {
namespace {

// Another screen, no cursor, no line that goes on in the next, and reports of the wheel.
constexpr std::string_view kEnter = "\x1b[?1049h\x1b[?25l\x1b[?7l\x1b[?1000h\x1b[?1006h";
constexpr std::string_view kLeave = "\x1b[0m\x1b[?1006l\x1b[?1000l\x1b[?7h\x1b[?25h\x1b[?1049l";

const char* variable(const char* name) {
  const char* value = port::processEnvironment(name);
  return value == nullptr ? "" : value;
}

// ---- A fault of the program itself ---------------------------------------------------------------------------------

constexpr std::array kFaults = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
std::array<struct sigaction, kFaults.size()> actions;  // as they were
const termios* usual = nullptr;                        // the mode to go back to

// The fault comes again, and is somebody else's then.
void giveBack(int fault) {
  [[maybe_unused]] const ssize_t count = ::write(STDOUT_FILENO, kLeave.data(), kLeave.size());
  if (usual != nullptr) ::tcsetattr(STDIN_FILENO, TCSANOW, usual);
  for (std::size_t i = 0; i < kFaults.size(); ++i) ::sigaction(kFaults[i], &actions[i], nullptr);
  ::raise(fault);
}

void watchFaults() {
  struct sigaction action {};
  action.sa_handler = giveBack;
  for (std::size_t i = 0; i < kFaults.size(); ++i) ::sigaction(kFaults[i], &action, &actions[i]);
}

void unwatchFaults() {
  for (std::size_t i = 0; i < kFaults.size(); ++i) ::sigaction(kFaults[i], &actions[i], nullptr);
}

}  // namespace

bool writesToTerminal() { return ::isatty(STDOUT_FILENO) == 1 && std::string_view(variable("TERM")) != "dumb"; }

Dress dressOfOutput(bool plain) {
  if (plain) return Dress::none;
  return *variable("NO_COLOR") != '\0' ? Dress::monochrome : Dress::colors;
}

Size sizeOfOutput() {
  winsize size{};
  if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return {};
  return {size.ws_row, size.ws_col};
}

Size Terminal::size() {
  constexpr Size kUsual{.rows = 24, .columns = 80};
  constexpr Size kMost{.rows = 512, .columns = 1024};
  const Size size = sizeOfOutput();
  if (size.rows == 0 || size.columns == 0) return kUsual;
  return {std::min(size.rows, kMost.rows), std::min(size.columns, kMost.columns)};
}

Terminal::Terminal(Dress dress) : dress_(dress) {
  termios mode{};
  if (::tcgetattr(STDIN_FILENO, &mode) == 0) mode_ = mode;
  usual = mode_ ? &*mode_ : nullptr;
  watchFaults();
  enter();
}

Terminal::~Terminal() {
  leave();
  unwatchFaults();
  usual = nullptr;
}

void Terminal::enter() {
  if (mode_) {
    termios mode = *mode_;
    mode.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON);
    ::tcsetattr(STDIN_FILENO, TCSANOW, &mode);
  }
  if (!writtenAll(kEnter)) throw std::system_error(EPIPE, std::generic_category(), "standard output");
}

// A terminal that is gone has nothing to be given back.
void Terminal::leave() {
  [[maybe_unused]] const ssize_t count = ::write(STDOUT_FILENO, kLeave.data(), kLeave.size());
  if (mode_) ::tcsetattr(STDIN_FILENO, TCSANOW, &*mode_);
}

// A program that is stopped leaves the terminal to the shell.
Terminal::Event Terminal::signaled() {
  const int signal = signals_.take();
  if (signal == 0 || signal == SIGWINCH) return Event::resized;
  if (signal != SIGTSTP) return Event::ended;
  leave();
  ::kill(::getpid(), SIGSTOP);
  enter();
  forget();
  return Event::resized;
}

Terminal::Event Terminal::read() {
  std::array<char, 256> bytes{};
  const ssize_t count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
  if (count <= 0) return count < 0 && errno == EINTR ? Event::typed : Event::ended;
  keys_ = keyboard_.typed({bytes.data(), static_cast<std::size_t>(count)});
  return Event::typed;
}

Terminal::Event Terminal::wait(double seconds) {
  keys_.clear();
  for (;;) {
    pollfd watched[] = {
        {signals_.descriptor(), POLLIN, 0}, {STDOUT_FILENO, 0, 0}, {mode_ ? STDIN_FILENO : -1, POLLIN, 0}};
    const int count = ::poll(watched, std::size(watched), millisecondsUntil(seconds));
    if (count < 0 && errno != EINTR) throw std::system_error(errno, std::generic_category(), "standard input");
    if (count <= 0) {
      if (seconds <= machine::secondsNow()) return Event::due;
      continue;
    }
    if (watched[0].revents != 0) return signaled();
    if (watched[1].revents != 0) return Event::ended;
    return read();
  }
}

bool Terminal::show(Frame frame) {
  const std::string text = changes(shown_, frame, dress_);
  shown_ = std::move(frame);
  return writtenAll(text);
}

}  // namespace kzm::cli
