#include <KZMUtilities/bytes.h>

#include "bytes/rendering.h"
#include "bytes/scaling.h"

namespace kzm::bytes {
namespace {

//   level        style          template  translator's hint
constexpr ByteUnit kUnits[] = {
    {Level::peta, Style::brief,  "%@P",   "petabyte"},
    {Level::tera, Style::brief,  "%@T",   "terabyte"},
    {Level::giga, Style::brief,  "%@G",   "gigabyte"},
    {Level::mega, Style::brief,  "%@M",   "megabyte"},
    {Level::kilo, Style::brief,  "%@K",   "kilobyte"},
    {Level::peta, Style::spaced, "%@ PB", nullptr   },
    {Level::tera, Style::spaced, "%@ TB", nullptr   },
    {Level::giga, Style::spaced, "%@ GB", nullptr   },
    {Level::mega, Style::spaced, "%@ MB", nullptr   },
    {Level::kilo, Style::spaced, "%@ KB", nullptr   },
    {Level::peta, Style::tight,  "%@PB",  nullptr   },
    {Level::tera, Style::tight,  "%@TB",  nullptr   },
    {Level::giga, Style::tight,  "%@GB",  nullptr   },
    {Level::mega, Style::tight,  "%@MB",  nullptr   },
    {Level::kilo, Style::tight,  "%@KB",  nullptr   },
};
constexpr auto kRows = core::unitRows(kUnits);
static_assert(core::wellFormed(kRows));

// Deliberate: 1024 KB stays KB (at most), but 1024 MB is already 1 GB (below). NaN ends in peta.
//   level        taken when       kilobytes        shown as
constexpr Rung kLadder[] = {
    {Level::kilo, Test::atMost,    1024.0,          times(1.0)    },
    {Level::mega, Test::below,     1048576.0,       times(0x1p-10)},
    {Level::giga, Test::below,     1073741824.0,    times(0x1p-20)},
    {Level::tera, Test::below,     1099511627776.0, times(0x1p-30)},
    {Level::peta, Test::otherwise, 0.0,             times(0x1p-40)},
};
static_assert(wellFormed(kLadder));

constexpr ByteFamily kMemory{
    .table = {core::UnitFamily::memory, kRows},
    .index = unitIndex(kUnits),
    .toBase = times(0x1p-10),
    .digits = core::DigitRule::exactly
};

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
