// What each thread holds of the shared cache, so that a call in the steady state takes no lock.
//
// A thread keeps the unit texts and number styles that it used, and fetches them anew when a host has changed the
// cache: an entry that a host puts there is honored by the very next call. What is given out is good until the same
// thread asks for the same table again, and only core/rendering relies on that: it asks and uses in one step.
#ifndef KZM_CORE_HELD_H
#define KZM_CORE_HELD_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include <KZMUtilities/dictionary.h>

#include "core/number_text.h"
#include "core/shared.h"
#include "core/template.h"
#include "core/unit_table.h"
#include "port/per_thread.h"

namespace kzm::core {

/// How a count of fraction digits is meant by those who share formatters.
enum class DigitRule : std::uint8_t { exactly, atMost };

/// The styles of the shared formatters, as one thread holds them.
class HeldStyles {
 public:
  /// The style of the shared formatter for the given number of fraction digits.
  [[nodiscard]] NumberStyle style(DigitRule rule, std::int64_t digits) {
    if (changes_ == CacheChanges::count() && digits >= 0 && digits < kDigits) [[likely]] {
      const NumberStyle& style = styles_[static_cast<std::size_t>(rule)][static_cast<std::size_t>(digits)];
      if (style.symbols != nullptr) [[likely]]
        return style;
    }
    return fetch(rule, digits);
  }

 private:
  NumberStyle fetch(DigitRule rule, std::int64_t digits);

  // Nobody reads more digits than these every second; larger counts are fetched from the cache each time.
  static constexpr std::int64_t kDigits = 16;

  std::uint64_t changes_ = 0;
  std::array<std::array<NumberStyle, kDigits>, 2> styles_{};  // without symbols: not fetched yet
};

/// The texts of one table, as one thread holds them.
class HeldTexts {
 public:
  /// The text of the row; not there when the table in the cache lacks it.
  [[nodiscard]] const Template& row(const UnitTable& table, std::size_t row) {
    if (changes_ != CacheChanges::count()) [[unlikely]]
      fetch(table);
    return templates_[row];
  }

 private:
  void fetch(const UnitTable& table);

  std::uint64_t changes_ = 0;
  std::shared_ptr<const Dictionary> texts_;  // whose strings the templates view
  std::vector<Template> templates_;
};

/// The thread's own text for a row of the table.
template <const UnitTable& table>
[[nodiscard]] const Template& heldText(std::size_t row) {
  struct Held : HeldTexts {};  // a class of its own for each table
  return port::perThread<Held>().row(table, row);
}

}  // namespace kzm::core

#endif
