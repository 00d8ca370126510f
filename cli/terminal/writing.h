// Standard output, written past all buffers.
#ifndef KZM_CLI_TERMINAL_WRITING_H
#define KZM_CLI_TERMINAL_WRITING_H

#include <string_view>

namespace kzm::cli {

/// Writes all of the text, waiting where it has to; false when nobody reads any more. Another failure is a
/// std::system_error.
[[nodiscard]] bool writtenAll(std::string_view text);

/// The milliseconds from now until machine::secondsNow() is `seconds`, for poll(); 0 when that is over.
[[nodiscard]] int millisecondsUntil(double seconds);

}  // namespace kzm::cli

#endif
