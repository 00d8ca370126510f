#include "bytes/rate_ladders.h"

#include "core/reading.h"

namespace kzm::bytes {
namespace {

constexpr Scale kToKilo = times(0x1p-10);
constexpr Scale kToMega = times(0x1p-20);
constexpr Scale kToGiga = times(0x1p-30);

// clang-format off
//   level        taken when       per second    shown as
constexpr Rung kBinary[] = {
    {Level::giga, Test::atLeast,   1073741824.0, kToGiga},
    {Level::mega, Test::atLeast,   1048576.0,    kToMega},
    {Level::kilo, Test::otherwise, 0.0,          kToKilo},
};
// clang-format on
// clang-format off
constexpr Rung kBinaryFromMega[] = {
    {Level::giga, Test::atLeast,   1073741824.0, kToGiga},
    {Level::mega, Test::otherwise, 0.0,          kToMega},
};
// clang-format on

// Deliberate: an early upgrade moves the thresholds alone, the factors stay binary. 10^9 bytes show as 0.93 giga.
// clang-format off
constexpr Rung kEarly[] = {
    {Level::giga, Test::atLeast,   1000000000.0, kToGiga},
    {Level::mega, Test::atLeast,   1000000.0,    kToMega},
    {Level::kilo, Test::otherwise, 0.0,          kToKilo},
};
// clang-format on
// clang-format off
constexpr Rung kEarlyFromMega[] = {
    {Level::giga, Test::atLeast,   1000000000.0, kToGiga},
    {Level::mega, Test::otherwise, 0.0,          kToMega},
};
// clang-format on

static_assert(wellFormed(kBinary) && wellFormed(kBinaryFromMega));
static_assert(wellFormed(kEarly) && wellFormed(kEarlyFromMega));

}  // namespace

Ladder rateLadder(const Dictionary& options, Level lowest) noexcept {
  static constexpr Key kEarlyUpgrade = "early-upgrade";
  const bool early = core::readBoolean(options.find(kEarlyUpgrade));
  if (lowest == Level::mega) return early ? Ladder(kEarlyFromMega) : Ladder(kBinaryFromMega);
  return early ? Ladder(kEarly) : Ladder(kBinary);
}

}  // namespace kzm::bytes
