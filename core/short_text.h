// Making texts of a few bytes, as readings are, without calls to the C library.
#ifndef KZM_CORE_SHORT_TEXT_H
#define KZM_CORE_SHORT_TEXT_H

#include <array>
#include <bit>
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
  if (size > 32) {
    std::memcpy(to, from, size);
  } else if (size > 16) {
    coverWith(std::array<std::uint64_t, 2>{});
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

/// Bytes that one word takes. In a word of text the first byte is the lowest.
inline constexpr std::size_t kWordBytes = sizeof(std::uint64_t);

/// Writes all bytes of a word.
[[gnu::always_inline]] inline void putWord(char* to, std::uint64_t word) noexcept {
  if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
  std::memcpy(to, &word, kWordBytes);
}

/// A text of at most eight bytes, zeros after its end: read by two parts that may overlap.
[[nodiscard]] constexpr std::uint64_t wordOf(std::string_view text) noexcept {
  const std::size_t size = text.size();
  const auto byte = [&](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(text[i])} << 8 * i; };
  const auto two = [&](std::size_t i) { return byte(i) | byte(i + 1); };
  const auto four = [&](std::size_t i) { return two(i) | two(i + 2); };
  if (size >= 4) return four(0) | four(size - 4);
  if (size >= 2) return two(0) | two(size - 2);
  return size == 1 ? byte(0) : 0;
}

/// As many bytes as std::string has room for in itself.
inline constexpr std::size_t kOwnRoom = 15;

/// A string of the given size, at most `room`, that `write` fills: it may use all of the room.
template <std::size_t room, class Write>
[[gnu::always_inline]] inline std::string textWithin(std::size_t size, const Write& write) {
  constexpr char kRoom[room + 1] = {};
  std::string text(kRoom, room);  // a known size: made without a loop
  write(text.data());
  text.erase(size);
  return text;
}

}  // namespace kzm::core

#endif
