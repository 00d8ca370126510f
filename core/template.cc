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

}  // namespace

// The pieces with the number between them; says how long that is.
[[gnu::always_inline]] inline std::string Template::written(std::string_view before, const NumberStyle& style,
                                                            double value, std::string_view after,
                                                            std::size_t& numberSize) {
  return withNumber(style, value, [&](const auto& number) {
    numberSize = number.size();
    return writtenText(before.size() + numberSize + after.size(),
                       [&](char* to) { putText(number.writeTo(putText(to, before)), after); });
  });
}

std::string Template::filled(const NumberStyle& style, double value) const {
  std::size_t numberSize = 0;
  if (!hasEscapes_ && hasPlace_) [[likely]]
    return written(before_, style, value, after_, numberSize);
  std::string text = unescaped(before_);
  if (hasPlace_) text.append(numberAlone(style, value)).append(unescaped(after_));
  return text;
}

std::string numberAlone(const NumberStyle& style, double value) {
  return withNumber(style, value, [](const auto& number) {
    return writtenText(number.size(), [&](char* to) { number.writeTo(to); });
  });
}

AttributedString Template::composed(const NumberStyle& style, double value, const Value& main,
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
