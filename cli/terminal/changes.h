// From one frame to the next, in the escape sequences of terminals.
#ifndef KZM_CLI_TERMINAL_CHANGES_H
#define KZM_CLI_TERMINAL_CHANGES_H

#include <cstdint>
#include <string>

#include "cli/terminal/frame.h"

namespace kzm::cli {

/// What of the styles a terminal gets.
enum class Dress : std::uint8_t {
  none,
  monochrome,  // all but colors
  colors,
};

/// What turns a terminal that shows `before` into one that shows `after`: nothing but the cells that differ. Frames of
/// another size have nothing in common. A row with text from right to left is written as a whole.
[[nodiscard]] std::string changes(const Frame& before, const Frame& after, Dress dress);

}  // namespace kzm::cli

#endif
