// A terminal that belongs to the program for a while.
#ifndef KZM_CLI_TERMINAL_TERMINAL_H
#define KZM_CLI_TERMINAL_TERMINAL_H

#include <cstdint>
#include <optional>
#include <string_view>
#include <termios.h>
#include <vector>

#include "cli/terminal/changes.h"
#include "cli/terminal/frame.h"
#include "cli/terminal/keys.h"
#include "cli/terminal/signals.h"

namespace kzm::cli {

/// Whether standard output is a terminal that can place its cursor.
[[nodiscard]] bool writesToTerminal();

/// What the user allows: nothing if `plain`, no colors with NO_COLOR.
[[nodiscard]] Dress dressOfOutput(bool plain);

/// The size of the terminal at standard output; nothing in it when that is none, or does not know.
[[nodiscard]] Size sizeOfOutput();

/// From its making to its end the terminal shows frames in place of the user's screen, which is there again afterwards,
/// whatever ended the program.
class Terminal {
 public:
  explicit Terminal(Dress dress);
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal();

  /// What ended a time of waiting.
  enum class Event : std::uint8_t {
    due,      // the time has come
    typed,    // keys() has something
    resized,  // the terminal has another size, or it has lost what it showed
    ended,    // the user wants to end it, or the terminal is gone
  };

  /// Waits until machine::secondsNow() is `seconds`.
  [[nodiscard]] Event wait(double seconds);

  /// The keys of the last event.
  [[nodiscard]] const std::vector<Key>& keys() const { return keys_; }

  /// Its size, within reason.
  [[nodiscard]] static Size size();

  /// Shows the frame by one write; false when nobody can see it.
  [[nodiscard]] bool show(Frame frame);

  /// The terminal has lost what it showed: the next frame is drawn as a whole.
  void forget() { shown_ = Frame(); }

 private:
  void enter();
  void leave();
  [[nodiscard]] Event signaled();
  [[nodiscard]] Event read();

  Dress dress_;
  Signals signals_;
  Keyboard keyboard_;
  std::vector<Key> keys_;
  Frame shown_;
  std::optional<termios> mode_;  // of the terminal at standard input, as it was; nothing when there is none
};

}  // namespace kzm::cli

#endif
