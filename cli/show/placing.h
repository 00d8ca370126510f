// Texts in the room that they have.
#ifndef KZM_CLI_SHOW_PLACING_H
#define KZM_CLI_SHOW_PLACING_H

#include <cstddef>
#include <string>
#include <string_view>

namespace kzm::cli {

/// The text, or as much of it as goes into the columns with "…" at its end.
[[nodiscard]] std::string cutTo(std::string_view text, std::size_t columns);

/// The text for a line with others: isolated if something in it is written from right to left.
[[nodiscard]] std::string inLine(std::string_view text);

/// The text, the given number of times.
[[nodiscard]] std::string repeated(std::string_view text, std::size_t count);

/// The full and the empty columns of a bar, in halves of a column; a part outside 0 to 1 is the next of them, and NaN
/// is 0.
struct Bar {
  std::string full;
  std::string empty;
};
[[nodiscard]] Bar barOf(double part, std::size_t columns);

}  // namespace kzm::cli

#endif
