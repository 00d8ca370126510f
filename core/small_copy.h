// Copies short texts without a call.
#ifndef KZM_CORE_SMALL_COPY_H
#define KZM_CORE_SMALL_COPY_H

#include <cstdint>
#include <cstring>
#include <string_view>

namespace kzm::core {

/// Copies the text to `to` and gives the place behind it. The pieces of a reading are a few bytes each: two overlapping
/// words that cover them are far cheaper than a call of memcpy.
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

}  // namespace kzm::core

#endif
