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

template <class Number>
char* putPieces(char* to, std::string_view before, const Number& number, std::string_view after) {
  if (!before.empty()) [[unlikely]]
    to = putText(to, before);
  return putText(number.writeTo(to), after);
}

template <class Number>
std::string longText(std::string_view before, const Number& number, std::string_view after, std::size_t& numberSize) {
  numberSize = number.size();
  std::string text(before.size() + numberSize + after.size(), '\0');
  putPieces(text.data(), before, number, after);
  return text;
}

// Any number at all.
[[gnu::noinline]] std::string anyText(std::string_view before, NumberStyle style, double value, std::string_view after,
                                      std::size_t& numberSize) {
  return longText(before, LongNumber(style, value), after, numberSize);
}

// The pieces with the number between them; says how long that is. Nearly every text fits a string's own room: the
// number stays in registers then.
[[gnu::always_inline]] inline std::string written(std::string_view before, NumberStyle style, double value,
                                                  std::string_view after, std::size_t& numberSize) {
  const ShortNumber number(style, value);
  const std::size_t size = before.size() + number.size() + after.size();
  if (!number.isLaidOut()) [[unlikely]]
    return anyText(before, style, value, after, numberSize);
  if (size > kOwnRoom) [[unlikely]]
    return longText(before, number, after, numberSize);
  numberSize = number.size();
  return shortText(size, [&](char* to) { putPieces(to, before, number, after); });
}

}  // namespace

[[gnu::flatten]] std::string Template::filled(NumberStyle style, double value) const {
  std::size_t numberSize = 0;
  if (!hasEscapes_ && hasPlace_) [[likely]]
    return written(before_, style, value, after_, numberSize);
  return filledSlowly(style, value);
}

[[gnu::noinline, gnu::cold]] std::string Template::filledSlowly(NumberStyle style, double value) const {
  std::string text = unescaped(before_);
  if (hasPlace_) text.append(numberAlone(style, value)).append(unescaped(after_));
  return text;
}

[[gnu::flatten]] std::string numberAlone(NumberStyle style, double value) {
  std::size_t numberSize = 0;
  return written({}, style, value, {}, numberSize);
}

[[gnu::flatten]] AttributedString Template::composed(NumberStyle style, double value, const Value& main,
                                                     const Value& units) const {
  if (hasPlace_ && !hasEscapes_ && !isPlaceNumbered_) [[likely]] {
    std::size_t numberSize = 0;
    std::string text = written(before_, style, value, after_, numberSize);
    return AttributedString(std::move(text), units, before_.size(), numberSize, main);
  }
  AttributedString text(std::string(text_), units);
  text.replaceFirst(kPlace, AttributedString(numberAlone(style, value), main));
  return text;
}

}  // namespace kzm::core
