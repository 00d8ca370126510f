#include <KZMUtilities/bytes.h>

#include "bytes/readings.h"
#include "bytes/scaling.h"
#include "bytes/size_units.h"

namespace kzm::bytes {
namespace {

// Deliberate: 1024 KB stays KB (at most), but 1024 MB is already 1 GB (below). NaN ends in peta
// (Memory.TheFirstThresholdIsReachedTheOthersAreNot).
// clang-format off
//   level        taken when         kilobytes        shown as
constexpr Rung kRungs[] = {
    {Level::kilo, Taken::atMost,     1024.0,          times(1.0)},
    {Level::mega, Taken::below,      1048576.0,       times(0x1p-10)},
    {Level::giga, Taken::below,      1073741824.0,    times(0x1p-20)},
    {Level::tera, Taken::below,      1099511627776.0, times(0x1p-30)},
    {Level::peta, Taken::otherwise,  0.0,             times(0x1p-40)},
};
// clang-format on
constexpr Ladder kLadder{kRungs};

constexpr auto kRows = core::unitRows("Units.Memory.", kSizeTexts);
constexpr core::UnitTable kMemoryTable{"Localizations-Units-Memory", kRows};
constexpr Scale kToKilobytes = times(0x1p-10);

}  // namespace

core::Reading memory(const Dictionary& options, double bytes) {
  const Scaled size = scaled(kLadder, options, kToKilobytes(bytes));
  return reading(size, kSizeIndex, wholeUnitStyle(options, Form::bytes), core::Digits::exactly);
}

}  // namespace kzm::bytes

kzm::Dictionary KZMUtilitiesMemoryData(const kzm::Dictionary& options, double bytes) {
  using namespace kzm::bytes;
  return kzm::core::data<kMemoryTable>(memory(options, bytes));
}

std::string KZMUtilitiesFormatMemory(const kzm::Dictionary& options, double bytes) {
  using namespace kzm::bytes;
  return kzm::core::text<kMemoryTable>(memory(options, bytes));
}

kzm::AttributedString KZMUtilitiesFormatMemoryWithAttributes(const kzm::Dictionary& options, double bytes) {
  using namespace kzm::bytes;
  return kzm::core::attributedText<kMemoryTable>(memory(options, bytes), options);
}
