#include "tools/strings/utf8.h"

namespace kzm::strings {
namespace {

// The well-formed sequences: what their first two bytes are, and how long they are. The bounds of the second byte leave
// out overlong forms, surrogates and what is beyond the last character.
struct Sequence {
  unsigned char firstFrom, firstTo;
  unsigned char secondFrom, secondTo;
  std::size_t length;
};
constexpr Sequence kSequences[] = {
    {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3}, {0xED, 0xED, 0x80, 0x9F, 3},
    {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
};

constexpr bool isWithin(unsigned char byte, unsigned char from, unsigned char to) { return byte >= from && byte <= to; }

constexpr bool begins(std::string_view text, const Sequence& row) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  if (text.size() < row.length || !isWithin(byte(0), row.firstFrom, row.firstTo)) return false;
  if (!isWithin(byte(1), row.secondFrom, row.secondTo)) return false;
  for (std::size_t i = 2; i < row.length; ++i) {
    if (!isWithin(byte(i), 0x80, 0xBF)) return false;
  }
  return true;
}

/// The length of the sequence that the text begins with; 0 when it is ill-formed.
constexpr std::size_t sequenceLength(std::string_view text) {
  if (static_cast<unsigned char>(text.front()) < 0x80) return 1;
  for (const Sequence& row : kSequences) {
    if (begins(text, row)) return row.length;
  }
  return 0;
}

}  // namespace

std::size_t illFormedAt(std::string_view text) noexcept {
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t length = sequenceLength(text.substr(position));
    if (length == 0) return position;
    position += length;
  }
  return std::string_view::npos;
}

}  // namespace kzm::strings
