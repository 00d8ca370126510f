// Texts that keep their order in a line of any direction.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <KZMUtilities/text.h>

namespace kzm {
namespace {

constexpr std::string_view kLeftToRight = "\u2066";
constexpr std::string_view kRightToLeft = "\u2067";
constexpr std::string_view kFirstStrong = "\u2068";
constexpr std::string_view kEnd = "\u2069";
constexpr std::string_view kBeginnings[] = {kLeftToRight, kRightToLeft, kFirstStrong};

bool isBeginning(std::string_view mark) { return std::ranges::find(kBeginnings, mark) != std::end(kBeginnings); }

constexpr std::size_t kMostToLetter = 1024;  // bytes in which the first letter is looked for

bool isDirectionMark(UChar32 character) { return character == 0x061C || character == 0x200E || character == 0x200F; }

/// A first-strong isolate, but where that would take a mark of direction for the first letter: some locales have one in
/// their minus sign, and the unit would change sides with the sign. Arabic digits alone are from right to left.
std::string_view beginningFor(std::string_view text) {
  bool hasMark = false;
  bool hasArabicDigits = false;
  text = text.substr(0, kMostToLetter);
  const auto all = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
  for (std::int32_t at = 0; at < all.length(); at = all.moveIndex32(at, 1)) {
    const UChar32 character = all.char32At(at);
    const UCharDirection direction = u_charDirection(character);
    if (isDirectionMark(character)) {
      hasMark = true;
    } else if (direction == U_LEFT_TO_RIGHT) {
      return hasMark ? kLeftToRight : kFirstStrong;
    } else if (direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC) {
      return hasMark ? kRightToLeft : kFirstStrong;
    }
    hasArabicDigits = hasArabicDigits || direction == U_ARABIC_NUMBER;
  }
  return hasArabicDigits ? kRightToLeft : kFirstStrong;
}

/// The marks that make one isolate of a text.
struct Marks {
  std::string before;
  std::string after;
};

Marks marksFor(std::string_view text) {
  Marks marks{std::string(beginningFor(text)), std::string(kEnd)};
  std::size_t open = 0;
  bool isOne = isBeginning(text.substr(0, kEnd.size()));
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::string_view mark = text.substr(at, kEnd.size());
    if (isBeginning(mark)) ++open;
    if (mark != kEnd) continue;
    if (open > 0) {
      --open;
    } else {
      marks.before += kFirstStrong;
    }
    isOne = isOne && (open > 0 || at + kEnd.size() == text.size());
  }
  if (text.empty() || (isOne && open == 0)) return {{}, {}};
  for (; open > 0; --open) marks.after += kEnd;
  return marks;
}

}  // namespace

std::string isolated(std::string_view text) {
  const Marks marks = marksFor(text);
  return marks.before + std::string(text) + marks.after;
}

AttributedString isolated(const AttributedString& text) {
  const Marks marks = marksFor(text.text());
  AttributedString whole;
  for (const AttributedString::Run& run : text.runs()) {
    if (whole.text().empty()) whole.append(marks.before, run.attributes);
    whole.append(run.text, run.attributes);
    if (whole.text().size() == marks.before.size() + text.text().size()) whole.append(marks.after, run.attributes);
  }
  return whole;
}

}  // namespace kzm
