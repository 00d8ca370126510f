// How the names of locales are written.
#ifndef KZM_PORT_LOCALE_FORM_H
#define KZM_PORT_LOCALE_FORM_H

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "port/ascii.h"

namespace kzm::port {

/// Whether the name, up to its codeset and keywords, is a language of two or three letters, then subtags of at most
/// eight letters and digits, each after a separator; "ca__VALENCIA" has an empty one.
[[nodiscard]] constexpr bool isLocaleHead(std::string_view head) noexcept {
  constexpr std::size_t kLongestSubtag = 8;
  const auto isSeparator = [](char c) { return c == '_' || c == '-'; };
  const std::size_t language = std::min(head.find_first_of("_-"), head.size());
  if ((language != 2 && language != 3) || !std::ranges::all_of(head.substr(0, language), isLetter)) return false;
  std::size_t length = 0;
  for (const char c : head.substr(language)) {
    length = isSeparator(c) ? 0 : length + 1;
    if (length > kLongestSubtag || !(isSeparator(c) || isAlphanumeric(c))) return false;
  }
  return !isSeparator(head.back());
}

}  // namespace kzm::port

#endif
