// Numbers as they are typed.
#ifndef KZM_CLI_NUMBERS_H
#define KZM_CLI_NUMBERS_H

#include <cstdint>
#include <string_view>

namespace kzm::cli {

/// Decimal text with a point and maybe an exponent, whatever the locale, or a named double. Anything else, and a number
/// that no double can hold, is an InputError.
[[nodiscard]] double numberIn(std::string_view text);

/// A whole number within the bounds; anything else is an InputError.
[[nodiscard]] std::int64_t integerIn(std::string_view text, std::int64_t least, std::int64_t most);

}  // namespace kzm::cli

#endif
