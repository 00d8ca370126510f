#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

#include <KZMUtilities/display_width.h>
#include <KZMUtilities/widest_text.h>

#include "core/number_text.h"
#include "core/rendering.h"
#include "core/template.h"
#include "widest/digits.h"
#include "widest/families.h"
#include "widest/search.h"
#include "widest/stretches.h"

namespace kzm {
namespace widest {
namespace {

// The magnitude in digits, rounded as the text rounds it, with the given number of them after the point.
std::string digitsOf(double number, int decimals) {
  const core::NumberStyle style{core::plainStyle().symbols, static_cast<std::int16_t>(decimals),
                                static_cast<std::int16_t>(decimals)};
  std::string digits = core::numberAlone(style, std::abs(number));
  std::erase(digits, '.');
  return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

double magnitudeOf(const std::string& digits, int decimals) {
  const std::string text = digits + "e-" + std::to_string(decimals);
  double magnitude = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), magnitude);
  return magnitude;
}

int decimalsOf(const core::Amount& amount) {
  if (amount.digits == core::Digits::plain) return 0;
  return static_cast<int>(std::clamp<std::int64_t>(amount.decimals, 0, core::kMostFractionDigits));
}

class Search {
 public:
  Search(const Family& family, const Dictionary& options, const TextMeasure& measure)
      : family_(family), options_(options), measure_(measure) {}

  void tryAll(const Stretch& stretch) {
    tryValue(stretch.from);
    tryValue(stretch.to);
    const std::optional<core::Reading> first = family_.reading(options_, stretch.from);
    if (!first.has_value() || stretch.from == stretch.to || !std::isfinite(first->amount.value)) return;
    tryNumbers(stretch, first->amount);
  }

  std::string text;

 private:
  // Numbers that come close to none of the values are those of an end: it was tried.
  void tryNumbers(const Stretch& stretch, const core::Amount& style) {
    const int decimals = decimalsOf(style);
    std::string least = digitsOf(style.value, decimals);
    std::string most = digitsOf(shown(stretch.to), decimals);
    const bool isNegative = std::signbit(style.value);
    if (isNegative) std::swap(least, most);
    for (const std::string& digits : wideNumbers(least, most, widthsIn(style))) {
      const double magnitude = magnitudeOf(digits, decimals);
      const double wanted = isNegative ? -magnitude : magnitude;
      if (wanted <= style.value || wanted > shown(stretch.to)) continue;
      tryValue(firstWhere(stretch.from, stretch.to, [&](double value) { return shown(value) >= wanted; }));
    }
  }

  void tryValue(double value) {
    std::string candidate = family_.text(options_, value);
    const double width = measure_(candidate);
    if (hasText_ && !(width > width_)) return;
    hasText_ = true;
    width_ = width;
    text = std::move(candidate);
  }

  [[nodiscard]] DigitWidths widthsIn(core::Amount style) const {
    DigitWidths digits{{}, style.digits == core::Digits::exactly || decimalsOf(style) == 0};
    style.decimals = 0;
    for (std::size_t digit = 0; digit < digits.widths.size(); ++digit) {
      style.value = static_cast<double>(digit);
      digits.widths[digit] = measure_(core::text(style));
    }
    return digits;
  }

  [[nodiscard]] double shown(double value) const { return family_.reading(options_, value)->amount.value; }

  const Family& family_;
  const Dictionary& options_;
  const TextMeasure& measure_;
  double width_ = 0.0;
  bool hasText_ = false;
};

}  // namespace
}  // namespace widest

ValueRange usualRange(TextFamily family) noexcept { return widest::familyOf(family).usual; }

double widthInColumns(std::string_view text) { return static_cast<double>(displayWidth(text)); }

std::string widestText(TextFamily family, const Dictionary& options, ValueRange values, const TextMeasure& measure) {
  widest::Search search(widest::familyOf(family), options, measure);
  for (const widest::Stretch& stretch : widest::stretchesOf(widest::familyOf(family), options, values)) {
    search.tryAll(stretch);
  }
  return search.text;
}

std::string widestText(TextFamily family, const Dictionary& options, const TextMeasure& measure) {
  return widestText(family, options, usualRange(family), measure);
}

}  // namespace kzm
