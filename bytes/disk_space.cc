#include <KZMUtilities/bytes.h>

#include "bytes/rendering.h"
#include "bytes/scaling.h"
#include "bytes/size_units.h"

namespace kzm::bytes {
namespace {

// Deliberate: the first three tests reach their threshold, the tera test does not: 10^12 bytes stay 1000 giga, 10^15
// bytes move up to peta. The peta divisor is 10^12 as single precision holds it, so petabytes come out 4 in 10^9 large.
// NaN ends in peta.
// clang-format off
//   level        taken when       kilobytes        shown as
constexpr Rung kLadder[] = {
    {Level::kilo, Test::atMost,    1000.0,          times(1.0)          },
    {Level::mega, Test::atMost,    1000000.0,       over(1000.0)        },
    {Level::giga, Test::atMost,    1000000000.0,    over(1000000.0)     },
    {Level::tera, Test::below,     1000000000000.0, over(1000000000.0)  },
    {Level::peta, Test::otherwise, 0.0,             over(999999995904.0)},
};
// clang-format on
static_assert(wellFormed(kLadder));

constexpr ByteFamily kDiskSpace{.table = {core::UnitFamily::diskSpace, kSizeRows},
                                .index = kSizeIndex,
                                .toBase = over(1000.0),
                                .digits = core::DigitRule::atMost};

Reading diskSpace(const Dictionary& options, double bytes) {
  return scaled(kDiskSpace, kLadder, wholeUnitStyle(options), options, bytes);
}

}  // namespace
}  // namespace kzm::bytes

kzm::Dictionary KZMUtilitiesSpaceData(const kzm::Dictionary& options, double bytes) {
  return kzm::bytes::dataOf(kzm::bytes::diskSpace(options, bytes));
}

std::string KZMUtilitiesFormatSpace(const kzm::Dictionary& options, double bytes) {
  return kzm::bytes::plainText(kzm::bytes::diskSpace(options, bytes));
}

kzm::AttributedString KZMUtilitiesFormatSpaceWithAttributes(const kzm::Dictionary& options, double bytes) {
  const kzm::bytes::Reading reading = kzm::bytes::diskSpace(options, bytes);
  return kzm::bytes::attributedText(options, reading, kzm::bytes::localizedNumber(reading).string());
}
