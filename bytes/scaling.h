// From a raw quantity to the number, its decimals and its unit.
#ifndef KZM_BYTES_SCALING_H
#define KZM_BYTES_SCALING_H

#include <cstddef>
#include <cstdint>

#include <KZMUtilities/dictionary.h>

#include "bytes/family.h"

namespace kzm::bytes {

/// What a family makes of a quantity: what its result Dictionary holds, without the Dictionary.
struct Reading {
  const ByteFamily* family;
  std::size_t unit;  // row of the family's table
  std::int64_t decimals;
  double value;
};

/// Walks the ladder, then the decimals rules under the key of the level reached, and takes the unit by level and style.
[[nodiscard]] Reading scaled(const ByteFamily& family, Ladder ladder, Style style, const Dictionary& options,
                             double quantity);

/// The style of the families with a boolean "short": it wins over "space".
[[nodiscard]] Style wholeUnitStyle(const Dictionary& options) noexcept;

}  // namespace kzm::bytes

#endif
