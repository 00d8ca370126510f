// The numbers of the families that have no unit: plain numbers and percentages.
#ifndef KZM_CORE_AMOUNTS_H
#define KZM_CORE_AMOUNTS_H

#include <KZMUtilities/dictionary.h>

#include "core/option_values.h"
#include "core/rendering.h"

namespace kzm::core {

/// Both have at most as many fraction digits as "decimals" says.
[[nodiscard]] inline Amount unitlessAmount(const Dictionary& options, double value) {
  return {Digits::atMost, readInteger(options.find(kDecimals)), value};
}

}  // namespace kzm::core

#endif
