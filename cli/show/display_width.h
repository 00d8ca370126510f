// How much room a text takes on a terminal, and whether it moves there.
#ifndef KZM_CLI_SHOW_DISPLAY_WIDTH_H
#define KZM_CLI_SHOW_DISPLAY_WIDTH_H

#include <cstddef>
#include <string_view>

namespace kzm::cli {

/// The columns that the UTF-8 text takes: none for marks that join the letter before and for marks of direction, two
/// for ideographs, else one.
[[nodiscard]] std::size_t displayWidth(std::string_view text) noexcept;

/// The longest beginning of the text that takes no more than the given number of columns. Characters stay whole.
[[nodiscard]] std::string_view fitting(std::string_view text, std::size_t columns) noexcept;

/// Whether the text has letters, or digits, that are written from right to left.
[[nodiscard]] bool hasRightToLeft(std::string_view text) noexcept;

}  // namespace kzm::cli

#endif
