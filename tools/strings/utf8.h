// Whether bytes are UTF-8.
#ifndef TOOLS_STRINGS_UTF8_H
#define TOOLS_STRINGS_UTF8_H

#include <cstddef>
#include <string_view>

namespace kzm::strings {

/// Where the first ill-formed sequence begins; npos when there is none.
[[nodiscard]] std::size_t illFormedAt(std::string_view text) noexcept;

}  // namespace kzm::strings

#endif
