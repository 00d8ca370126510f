#include "port/writing_direction.h"

#include <cstddef>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace kzm::port {
namespace {

constexpr std::size_t kMostToLetter = 1024;  // bytes in which the first letter is looked for

bool isDirectionMark(UChar32 character) { return character == 0x061C || character == 0x200E || character == 0x200F; }

WritingDirection::Letter letterOf(UCharDirection direction) {
  if (direction == U_LEFT_TO_RIGHT) return WritingDirection::Letter::leftToRight;
  const bool isRightToLeft = direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC;
  return isRightToLeft ? WritingDirection::Letter::rightToLeft : WritingDirection::Letter::none;
}

}  // namespace

WritingDirection writingDirectionOf(std::string_view text) {
  WritingDirection found;
  text = text.substr(0, kMostToLetter);
  const auto all = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
  for (std::int32_t at = 0; at < all.length(); at = all.moveIndex32(at, 1)) {
    const UChar32 character = all.char32At(at);
    if (isDirectionMark(character)) {
      found.hasMark = true;
      continue;
    }
    const UCharDirection direction = u_charDirection(character);
    found.letter = letterOf(direction);
    if (found.letter != WritingDirection::Letter::none) break;
    found.hasArabicDigits = found.hasArabicDigits || direction == U_ARABIC_NUMBER;
  }
  return found;
}

}  // namespace kzm::port
