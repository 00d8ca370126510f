#include "core/template.h"

#include <utility>

#include "core/short_text.h"

namespace kzm::core {
namespace {

// The text with one percent sign for each "%%".
std::string unescaped(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    result += text[i];
    if (text.substr(i).starts_with("%%")) ++i;
  }
  return result;
}

// The number is written by `write`, which takes its place and gives the place after it.
template <class Write>
void putPieces(char* to, const TemplatePieces& pieces, const Write& write) {
  putText(write(putText(to, pieces.before)), pieces.after);
}

// A text of any length.
template <class Write>
std::string longText(const TemplatePieces& pieces, std::size_t numberSize, const Write& write) {
  std::string text(pieces.before.size() + numberSize + pieces.after.size(), '\0');
  putPieces(text.data(), pieces, write);
  return text;
}

// Any number at all.
[[gnu::noinline]] std::string anyText(const TemplatePieces& pieces, NumberStyle style, double value,
                                      std::size_t& numberSize) {
  const LongNumber number(style, value);
  numberSize = number.size();
  return longText(pieces, numberSize, [&](char* to) { return number.writeTo(to); });
}

// A text of the given size, at most `room`.
template <std::size_t room>
[[gnu::always_inline]] inline std::string textIn(std::size_t size, const TemplatePieces& pieces,
                                                 const ShortNumber& number) {
  return textWithin<room>(
      size, [&](char* text) { putPieces(text, pieces, [&](char* to) { return number.writeTo(to, text + room); }); });
}

// Room for a reading in any script, with kSpareRoom after it.
constexpr std::size_t kLineRoom = 63;

// The pieces with the number between them; says how long that is. Nearly every text is two words, which take a string's
// own room and its end, or fits that room: the number stays in registers then.
[[gnu::always_inline]] inline std::string written(const TemplatePieces& pieces, NumberStyle style, double value,
                                                  std::size_t& numberSize) {
  const ShortNumber number(style, value);
  if (pieces.fitWords && number.isOneWord()) [[likely]] {
    static_assert(2 * kWordBytes == kOwnRoom + 1);  // the last byte is 0, as the string's end is
    numberSize = number.wordSize();
    return textWithin<kOwnRoom>(numberSize + pieces.after.size(), [&](char* to) {
      putWord(to, number.word());
      putWord(to + numberSize, pieces.afterWord);
    });
  }
  if (!number.isLaidOut()) return anyText(pieces, style, value, numberSize);
  numberSize = number.size();
  const std::size_t size = pieces.before.size() + numberSize + pieces.after.size();
  if (size <= kOwnRoom) return textIn<kOwnRoom>(size, pieces, number);
  if (size <= kLineRoom - kSpareRoom) return textIn<kLineRoom>(size, pieces, number);
  return longText(pieces, numberSize, [&](char* to) { return number.writeTo(to, to + numberSize); });
}

}  // namespace

[[gnu::flatten]] std::string Template::filled(NumberStyle style, double value) const {
  std::size_t numberSize = 0;
  if (!hasEscapes_ && hasPlace_) [[likely]]
    return written(pieces_, style, value, numberSize);
  return filledSlowly(style, value);
}

[[gnu::noinline, gnu::cold]] std::string Template::filledSlowly(NumberStyle style, double value) const {
  std::string text = unescaped(pieces_.before);
  if (hasPlace_) text.append(numberAlone(style, value)).append(unescaped(pieces_.after));
  return text;
}

[[gnu::flatten]] std::string numberAlone(NumberStyle style, double value) {
  static constexpr TemplatePieces kNothing;
  std::size_t numberSize = 0;
  return written(kNothing, style, value, numberSize);
}

[[gnu::flatten]] AttributedString Template::composed(NumberStyle style, double value, const Value& main,
                                                     const Value& units) const {
  if (hasPlace_ && !hasEscapes_ && !isPlaceNumbered_) [[likely]] {
    std::size_t numberSize = 0;
    std::string text = written(pieces_, style, value, numberSize);
    return AttributedString(std::move(text), units, pieces_.before.size(), numberSize, main);
  }
  AttributedString text(std::string(text_), units);
  text.replaceFirst(kPlace, AttributedString(numberAlone(style, value), main));
  return text;
}

}  // namespace kzm::core
