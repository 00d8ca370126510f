// In which direction a text is written.
#ifndef KZM_PORT_WRITING_DIRECTION_H
#define KZM_PORT_WRITING_DIRECTION_H

#include <cstdint>
#include <string_view>

namespace kzm::port {

/// What a text says of its direction up to its first letter, which is looked for in the first 1024 bytes.
struct WritingDirection {
  enum class Letter : std::uint8_t { none, leftToRight, rightToLeft };
  Letter letter = Letter::none;
  bool hasMark = false;          // of direction, before the letter
  bool hasArabicDigits = false;  // before the letter
};

/// The direction of UTF-8 text.
[[nodiscard]] WritingDirection writingDirectionOf(std::string_view text);

}  // namespace kzm::port

#endif
