// Standard output as a pipe or a file that is written again and again, and the time between.
#ifndef KZM_CLI_SHOW_FEED_H
#define KZM_CLI_SHOW_FEED_H

#include <string_view>

#include "cli/terminal/signals.h"

namespace kzm::cli {

class Feed {
 public:
  /// Waits until machine::secondsNow() is `seconds`; false when the user wants to end it, or nobody reads any more.
  [[nodiscard]] bool waited(double seconds);

  /// Writes the text; false when nobody reads any more. Another failure is a std::system_error.
  [[nodiscard]] bool write(std::string_view text);

  /// Whether it has come to its end because nobody reads any more.
  [[nodiscard]] bool readerHasLeft() const { return readerHasLeft_; }

 private:
  Signals signals_;
  bool readerHasLeft_ = false;
};

}  // namespace kzm::cli

#endif
