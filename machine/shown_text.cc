// What of a device's text may reach a terminal.
#include <cstddef>
#include <string>
#include <string_view>

#include "machine/files.h"
#include "port/ascii.h"

namespace kzm::machine {
namespace {

struct Character {
  char32_t code;
  std::size_t length;  // in bytes; 0: the text does not begin with a character
};

std::size_t lengthFrom(unsigned char lead) {
  if (lead < 0x80U) return 1;
  if (lead >= 0xC2U && lead < 0xE0U) return 2;
  if (lead >= 0xE0U && lead < 0xF0U) return 3;
  return lead >= 0xF0U && lead < 0xF5U ? 4 : 0;
}

// Overlong forms, surrogates and codes beyond the last are no characters.
bool isCharacter(char32_t code, std::size_t length) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  return code >= kLeast[length] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

Character firstOf(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lengthFrom(lead);
  if (length == 0 || length > text.size()) return {0, 0};
  char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (!port::continuesCharacter(text[i])) return {0, 0};
    code = code << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  return isCharacter(code, length) ? Character{code, length} : Character{0, 0};
}

// Control characters steer the terminal; the others turn the direction of writing, break lines or show nothing.
bool isShown(char32_t code) {
  const bool controls = code < 0x20 || (code >= 0x7F && code <= 0x9F);
  const bool turns = code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x2028 && code <= 0x202E) ||
                     (code >= 0x2066 && code <= 0x2069) || code == 0xFEFF;
  return !controls && !turns;
}

}  // namespace

std::string shownText(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const Character character = firstOf(text);
    if (character.length > 0 && isShown(character.code)) shown.append(text.substr(0, character.length));
    text.remove_prefix(character.length > 0 ? character.length : 1);
  }
  const std::size_t first = shown.find_first_not_of(' ');
  return first == std::string::npos ? "" : shown.substr(first, shown.find_last_not_of(' ') + 1 - first);
}

}  // namespace kzm::machine
