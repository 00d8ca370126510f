// Texts that keep their order in a line of any direction.
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

#include <KZMUtilities/text.h>

#include "port/writing_direction.h"

namespace kzm {
namespace {

constexpr std::string_view kLeftToRight = "\u2066";
constexpr std::string_view kRightToLeft = "\u2067";
constexpr std::string_view kFirstStrong = "\u2068";
constexpr std::string_view kEnd = "\u2069";
constexpr std::string_view kBeginnings[] = {kLeftToRight, kRightToLeft, kFirstStrong};

bool isBeginning(std::string_view mark) { return std::ranges::find(kBeginnings, mark) != std::end(kBeginnings); }

// A first-strong isolate, but where that would take a mark of direction for the first letter: some locales have one in
// their minus sign, and the unit would change sides with the sign. Arabic digits alone are from right to left.
std::string_view beginningFor(std::string_view text) {
  using Letter = port::WritingDirection::Letter;
  const port::WritingDirection direction = port::writingDirectionOf(text);
  if (direction.letter == Letter::none) return direction.hasArabicDigits ? kRightToLeft : kFirstStrong;
  if (!direction.hasMark) return kFirstStrong;
  return direction.letter == Letter::leftToRight ? kLeftToRight : kRightToLeft;
}

// The marks that make one isolate of a text.
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
