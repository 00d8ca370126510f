// Standard output as a screen that is drawn again and again, and the time between.
#ifndef KZM_CLI_SHOW_SCREEN_H
#define KZM_CLI_SHOW_SCREEN_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/show/layout.h"
#include "port/descriptor.h"

namespace kzm::cli {

/// Whether standard output is a terminal that can place its cursor.
[[nodiscard]] bool writesToTerminal();

/// The look of standard output as it is now: its width, and styles unless `plain` or NO_COLOR asks for none.
[[nodiscard]] Look lookOfOutput(bool plain);

/// A screen from its making to its end. On a terminal each drawing takes the place of the one before, and the cursor is
/// hidden in the meantime; elsewhere drawings follow each other with an empty line between.
class Screen {
 public:
  Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen();

  /// What ended a time of waiting.
  enum class Event : std::uint8_t {
    due,      // the time has come
    resized,  // the terminal has another size
    ended,    // the user wants to end it, or nobody reads any more
  };

  /// Waits until machine::secondsNow() is `seconds`.
  [[nodiscard]] Event wait(double seconds);

  /// Draws the lines; false when nobody reads any more. Throws when they cannot be written for another reason.
  [[nodiscard]] bool draw(std::vector<std::string> lines);

  /// Whether the screen has come to its end because nobody reads any more.
  [[nodiscard]] bool readerHasLeft() const { return readerHasLeft_; }

 private:
  bool write(std::string_view text);
  [[nodiscard]] Event signaled();

  bool terminal_;
  bool drawn_ = false;
  bool readerHasLeft_ = false;
  port::Descriptor signals_;  // from which the signals are read that end, resize or stop the program
};

}  // namespace kzm::cli

#endif
