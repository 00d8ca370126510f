// The ladders of the two families that show rates: bandwidth and disk activity.
#ifndef KZM_BYTES_RATE_LADDERS_H
#define KZM_BYTES_RATE_LADDERS_H

#include <span>

#include <KZMUtilities/dictionary.h>

#include "bytes/family.h"
#include "core/option_values.h"

namespace kzm::bytes {

inline constexpr Scale kToKilo = times(0x1p-10);
inline constexpr Scale kToMega = times(0x1p-20);
inline constexpr Scale kToGiga = times(0x1p-30);

// NaN lands on the lowest level: it is not at least anything.
// clang-format off
//   level        taken when         per second    shown as
inline constexpr Rung kBinaryRungs[] = {
    {Level::kilo, Taken::notAtLeast, 1048576.0,    kToKilo},
    {Level::mega, Taken::notAtLeast, 1073741824.0, kToMega},
    {Level::giga, Taken::otherwise,  0.0,          kToGiga},
};

// Deliberate: an early upgrade moves the thresholds alone, the factors stay binary. 10^9 bytes show as 0.93 giga
// (Bandwidth.AnEarlyUpgradeMovesTheThresholdsButNotTheFactors).
inline constexpr Rung kEarlyRungs[] = {
    {Level::kilo, Taken::notAtLeast, 1000000.0,    kToKilo},
    {Level::mega, Taken::notAtLeast, 1000000000.0, kToMega},
    {Level::giga, Taken::otherwise,  0.0,          kToGiga},
};
// clang-format on

// By whether the upgrade is early.
inline constexpr Ladder kFromKilo[] = {Ladder(kBinaryRungs), Ladder(kEarlyRungs)};
inline constexpr Ladder kFromMega[] = {Ladder(std::span(kBinaryRungs).subspan(1)),
                                       Ladder(std::span(kEarlyRungs).subspan(1))};

/// The ladder that the boolean option "early-upgrade" asks for; one whose lowest level is mega has no kilo level.
[[nodiscard]] inline const Ladder& rateLadder(const Dictionary& options, Level lowest) noexcept {
  static constexpr Key kEarlyUpgrade = "early-upgrade";
  const bool early = core::readBoolean(options.find(kEarlyUpgrade));
  return (lowest == Level::mega ? kFromMega : kFromKilo)[early ? 1 : 0];
}

}  // namespace kzm::bytes

#endif
