#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <KZMUtilities/display_width.h>

namespace kzm {
namespace {

constexpr UChar32 kSoftHyphen = 0x00AD;  // an invisible one by its category, but terminals show it

// Marks that join the letter before, joiners and marks of direction.
bool isInvisible(UChar32 character) {
  constexpr auto kInvisible = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK;
  return (U_GET_GC_MASK(character) & kInvisible) != 0 && character != kSoftHyphen;
}

// The vowels and final consonants of Hangul join the consonant before.
bool joinsSyllable(UChar32 character) {
  const int kind = u_getIntPropertyValue(character, UCHAR_HANGUL_SYLLABLE_TYPE);
  return kind == U_HST_VOWEL_JAMO || kind == U_HST_TRAILING_JAMO;
}

// A negative character is a sequence of bytes that is none: terminals show one sign for it.
std::size_t columnsOf(UChar32 character) {
  if (character < 0) return 1;
  if (isInvisible(character) || joinsSyllable(character)) return 0;
  const int width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
  return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

// Takes one character off the front.
std::string_view takeCharacter(std::string_view& text, UChar32& character) noexcept {
  std::array<std::uint8_t, U8_MAX_LENGTH> bytes{};
  const std::size_t room = std::min(text.size(), bytes.size());
  std::copy_n(text.begin(), room, bytes.begin());
  std::size_t size = 0;
  U8_NEXT(bytes, size, room, character);
  const std::string_view taken = text.substr(0, static_cast<std::size_t>(size));
  text.remove_prefix(taken.size());
  return taken;
}

}  // namespace

std::size_t displayWidth(std::string_view text) noexcept {
  std::size_t width = 0;
  while (!text.empty()) {
    UChar32 character = 0;
    takeCharacter(text, character);
    width += columnsOf(character);
  }
  return width;
}

std::string_view fitting(std::string_view text, std::size_t columns) noexcept {
  std::size_t size = 0;
  std::string_view rest = text;
  while (!rest.empty()) {
    UChar32 character = 0;
    const std::string_view taken = takeCharacter(rest, character);
    const std::size_t width = columnsOf(character);
    if (width > columns) break;
    columns -= width;
    size += taken.size();
  }
  return text.substr(0, size);
}

bool hasRightToLeft(std::string_view text) noexcept {
  while (!text.empty()) {
    UChar32 character = 0;
    takeCharacter(text, character);
    const UCharDirection direction = u_charDirection(character);
    if (direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC || direction == U_ARABIC_NUMBER)
      return true;
  }
  return false;
}

}  // namespace kzm
