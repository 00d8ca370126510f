// The ladders of the two families that show rates: bandwidth and disk activity.
#ifndef KZM_BYTES_RATE_LADDERS_H
#define KZM_BYTES_RATE_LADDERS_H

#include <KZMUtilities/dictionary.h>

#include "bytes/family.h"

namespace kzm::bytes {

/// The ladder that the boolean option "early-upgrade" asks for; one that ends in mega has no kilo level.
[[nodiscard]] const Ladder& rateLadder(const Dictionary& options, Level lowest) noexcept;

}  // namespace kzm::bytes

#endif
