// Making texts of a few bytes, as readings are, without calls to the C library.
#ifndef KZM_CORE_SHORT_TEXT_H
#define KZM_CORE_SHORT_TEXT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace kzm::core {

/// Copies the text to `to` and gives the place after it. Two overlapping words that cover a short text are far cheaper
/// than a call of memcpy.
[[gnu::always_inline]] inline char* putText(char* to, std::string_view text) noexcept {
  const char* from = text.data();
  const std::size_t size = text.size();
  const auto coverWith = [=](auto word) {
    auto last = word;
    std::memcpy(&word, from, sizeof word);
    std::memcpy(&last, from + size - sizeof last, sizeof last);
    std::memcpy(to, &word, sizeof word);
    std::memcpy(to + size - sizeof last, &last, sizeof last);
  };
  if (size > 16) {
    std::memcpy(to, from, size);
  } else if (size >= 8) {
    coverWith(std::uint64_t{});
  } else if (size >= 4) {
    coverWith(std::uint32_t{});
  } else if (size >= 2) {
    coverWith(std::uint16_t{});
  } else if (size == 1) {
    *to = *from;
  }
  return to + size;
}

/// As many bytes as std::string has room for in itself.
inline constexpr std::size_t kOwnRoom = 15;

/// A string of the given size, at most kOwnRoom, that `write` fills.
template <class Write>
[[gnu::always_inline]] inline std::string shortText(std::size_t size, const Write& write) {
  constexpr char kRoom[kOwnRoom + 1] = {};
  std::string text(kRoom, kOwnRoom);  // a known size: made without a loop
  write(text.data());
  text.erase(size);
  return text;
}

}  // namespace kzm::core

#endif
