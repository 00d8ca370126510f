// A unit text with a place for the number, such as "%@ GB".
#ifndef KZM_CORE_TEMPLATE_H
#define KZM_CORE_TEMPLATE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>

#include "core/number_text.h"
#include "core/short_text.h"

namespace kzm::core {

/// What is around the number.
struct TemplatePieces {
  constexpr TemplatePieces() noexcept = default;
  constexpr TemplatePieces(std::string_view textBefore, std::string_view textAfter) noexcept
      : before(textBefore),
        after(textAfter),
        fitWords(textBefore.empty() && textAfter.size() < kWordBytes),
        afterWord(fitWords ? wordOf(textAfter) : 0) {}

  std::string_view before;
  std::string_view after;
  bool fitWords = true;         // nothing before the number, and after it less than a word: its last byte is 0
  std::uint64_t afterWord = 0;  // that, zeros after its end
};

/// A view of a template, taken apart so that filling in a number copies three pieces. Its text is data: it may hold
/// anything.
class Template {
 public:
  /// No template at all: the one of a unit that a host's own table lacks.
  constexpr Template() noexcept = default;
  /// The text must outlive the Template.
  constexpr explicit Template(std::string_view text) noexcept;

  [[nodiscard]] constexpr bool isThere() const noexcept { return text_.data() != nullptr; }
  [[nodiscard]] constexpr std::string_view text() const noexcept { return text_; }

  /// The format operation: the first "%@" or "%1$@" becomes the number, "%%" one percent sign, and all else stays, a
  /// lone "%" and a second "%@" too. A template without a place for the number gives its own text.
  [[nodiscard]] std::string filled(NumberStyle style, double value) const;

  /// The text exactly as it is, in the attributes of the units, but for its first "%@", which becomes the number in
  /// the main attributes. No format operation here: "%%" stays two signs.
  [[nodiscard]] AttributedString composed(NumberStyle style, double value, const Value& main, const Value& units) const;

 private:
  [[nodiscard]] std::string filledSlowly(NumberStyle style, double value) const;

  std::string_view text_;
  TemplatePieces pieces_;
  bool hasPlace_ = false;
  bool hasEscapes_ = false;       // "%%" in one of the two pieces
  bool isPlaceNumbered_ = false;  // "%1$@"
};

inline constexpr std::string_view kPlace = "%@";

/// The number without a unit.
[[nodiscard]] std::string numberAlone(NumberStyle style, double value);

constexpr Template::Template(std::string_view text) noexcept : text_(text), pieces_(text, {}) {
  constexpr std::string_view kNumberedPlace = "%1$@";
  for (std::size_t i = text.find('%'); i != std::string_view::npos; i = text.find('%', i + 1)) {
    const std::string_view rest = text.substr(i);
    if (rest.starts_with("%%")) {
      hasEscapes_ = true;
      ++i;
      continue;
    }
    const bool isNumbered = rest.starts_with(kNumberedPlace);
    if (hasPlace_ || !(isNumbered || rest.starts_with(kPlace))) continue;
    const std::size_t size = isNumbered ? kNumberedPlace.size() : kPlace.size();
    hasPlace_ = true;
    isPlaceNumbered_ = isNumbered;
    pieces_ = {text.substr(0, i), rest.substr(size)};
    i += size - 1;
  }
}

/// Percent in one sign that no language changes.
inline constexpr Template kPercent("%@%%");

}  // namespace kzm::core

#endif
