// What is known of each family whose widest text can be asked for.
#ifndef KZM_WIDEST_FAMILIES_H
#define KZM_WIDEST_FAMILIES_H

#include <optional>
#include <span>
#include <string>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/widest_text.h>

#include "core/rendering.h"

namespace kzm::widest {

struct Family {
  TextFamily name;
  std::string (*text)(const Dictionary& options, double value);
  /// The number of the text, and the row of its unit. Nothing where there is no text. Between two `apart` values a
  /// greater value has no lesser number within one row, and comes back to no row that a lesser one has left.
  std::optional<core::Reading> (*reading)(const Dictionary& options, double value);
  ValueRange usual;
  /// Ascending values that are shown in their own way, unlike those next to them.
  std::span<const double> apart;
};

[[nodiscard]] const Family& familyOf(TextFamily name) noexcept;

}  // namespace kzm::widest

#endif
