#include <KZMUtilities/bytes.h>

#include "bytes/rendering.h"
#include "bytes/scaling.h"
#include "bytes/size_units.h"

namespace kzm::bytes {
namespace {

// Deliberate: 1024 KB stays KB (at most), but 1024 MB is already 1 GB (below). NaN ends in peta.
// clang-format off
//   level        taken when       kilobytes        shown as
constexpr Rung kLadder[] = {
    {Level::kilo, Test::atMost,    1024.0,          times(1.0)    },
    {Level::mega, Test::below,     1048576.0,       times(0x1p-10)},
    {Level::giga, Test::below,     1073741824.0,    times(0x1p-20)},
    {Level::tera, Test::below,     1099511627776.0, times(0x1p-30)},
    {Level::peta, Test::otherwise, 0.0,             times(0x1p-40)},
};
// clang-format on
static_assert(wellFormed(kLadder));

constexpr ByteFamily kMemory{.table = {core::UnitFamily::memory, kSizeRows},
                             .index = kSizeIndex,
                             .toBase = times(0x1p-10),
                             .digits = core::DigitRule::exactly};

Reading memory(const Dictionary& options, double bytes) {
  return scaled(kMemory, kLadder, wholeUnitStyle(options), options, bytes);
}

}  // namespace
}  // namespace kzm::bytes

kzm::Dictionary KZMUtilitiesMemoryData(const kzm::Dictionary& options, double bytes) {
  return kzm::bytes::dataOf(kzm::bytes::memory(options, bytes));
}

std::string KZMUtilitiesFormatMemory(const kzm::Dictionary& options, double bytes) {
  return kzm::bytes::plainText(kzm::bytes::memory(options, bytes));
}

kzm::AttributedString KZMUtilitiesFormatMemoryWithAttributes(const kzm::Dictionary& options, double bytes) {
  const kzm::bytes::Reading reading = kzm::bytes::memory(options, bytes);
  return kzm::bytes::attributedText(options, reading, kzm::bytes::localizedNumber(reading).string());
}
