#include <KZMUtilities/bytes.h>

#include "bytes/readings.h"
#include "bytes/scaling.h"
#include "bytes/size_units.h"

namespace kzm::bytes {
namespace {

// Deliberate: the first three tests reach their threshold, the tera test does not: 10^12 bytes stay 1000 giga, 10^15
// bytes move up to peta. The peta divisor is 10^12 as single precision holds it, so petabytes come out 4 in 10^9 large.
// NaN ends in peta (DiskSpace.TheFirstThreeThresholdsAreReachedTheFourthIsNot,
// DiskSpace.ThePetaDivisorIsInSinglePrecision).
// clang-format off
//   level        taken when         kilobytes        shown as
constexpr Rung kRungs[] = {
    {Level::kilo, Taken::atMost,     1000.0,          times(1.0)},
    {Level::mega, Taken::atMost,     1000000.0,       over(1000.0)},
    {Level::giga, Taken::atMost,     1000000000.0,    over(1000000.0)},
    {Level::tera, Taken::below,      1000000000000.0, over(1000000000.0)},
    {Level::peta, Taken::otherwise,  0.0,             over(999999995904.0)},
};
// clang-format on
constexpr Ladder kLadder{kRungs};

constexpr auto kRows = core::unitRows("Units.Space.", kSizeTexts);
constexpr core::UnitTable kDiskSpaceTable{"Localizations-Units-Space", kRows};
constexpr Scale kToKilobytes = over(1000.0);

}  // namespace

core::Reading diskSpace(const Dictionary& options, double bytes) {
  const Scaled size = scaled(kLadder, options, kToKilobytes(bytes));
  return reading(size, kSizeIndex, wholeUnitStyle(options, Form::bytes), core::Digits::atMost);
}

}  // namespace kzm::bytes

kzm::Dictionary KZMUtilitiesSpaceData(const kzm::Dictionary& options, double bytes) {
  using namespace kzm::bytes;
  return kzm::core::data<kDiskSpaceTable>(diskSpace(options, bytes));
}

std::string KZMUtilitiesFormatSpace(const kzm::Dictionary& options, double bytes) {
  using namespace kzm::bytes;
  return kzm::core::text<kDiskSpaceTable>(diskSpace(options, bytes));
}

kzm::AttributedString KZMUtilitiesFormatSpaceWithAttributes(const kzm::Dictionary& options, double bytes) {
  using namespace kzm::bytes;
  return kzm::core::attributedText<kDiskSpaceTable>(diskSpace(options, bytes), options);
}
