#include <KZMUtilities/bytes.h>

#include "bytes/rate_ladders.h"
#include "bytes/rendering.h"
#include "bytes/scaling.h"
#include "core/options.h"
#include "core/reading.h"

namespace kzm::bytes {
namespace {

// Deliberate: the hints are those of the five letters from peta to kilo, laid on the first five rows as they come.
// clang-format off
//   level        style          template   translator's hint
constexpr ByteUnit kUnits[] = {
    {Level::giga, Style::brief,  "%@G",     "petabyte"},
    {Level::mega, Style::brief,  "%@M",     "terabyte"},
    {Level::kilo, Style::brief,  "%@K",     "gigabyte"},
    {Level::giga, Style::spaced, "%@ GB/s", "megabyte"},
    {Level::mega, Style::spaced, "%@ MB/s", "kilobyte"},
    {Level::kilo, Style::spaced, "%@ KB/s", nullptr   },
    {Level::giga, Style::tight,  "%@GB/s",  nullptr   },
    {Level::mega, Style::tight,  "%@MB/s",  nullptr   },
    {Level::kilo, Style::tight,  "%@KB/s",  nullptr   },
};
// clang-format on
constexpr auto kRows = core::unitRows(kUnits);
static_assert(core::wellFormed(kRows));

constexpr ByteFamily kDiskActivity{.table = {core::UnitFamily::diskActivity, kRows},
                                   .index = unitIndex(kUnits),
                                   .toBase = times(1.0),
                                   .digits = core::DigitRule::exactly};

// "hide-bytes" hides rates below one kilobyte per second. NaN is not below.
constexpr double kHiddenBelow = 1024.0;

bool isHidden(const Dictionary& options, double bytesPerSecond) {
  static constexpr Key kHideBytes = "hide-bytes";
  return bytesPerSecond < kHiddenBelow && core::readBoolean(options.find(kHideBytes));
}

Reading diskActivity(const Dictionary& options, double bytesPerSecond) {
  const Ladder ladder = rateLadder(options, Level::kilo);
  return scaled(kDiskActivity, ladder, wholeUnitStyle(options), options, bytesPerSecond);
}

}  // namespace
}  // namespace kzm::bytes

kzm::Dictionary KZMUtilitiesDiskActivityData(const kzm::Dictionary& options, double bytesPerSecond) {
  return kzm::bytes::dataOf(kzm::bytes::diskActivity(options, bytesPerSecond));
}

std::string KZMUtilitiesFormatDiskActivity(const kzm::Dictionary& options, double bytesPerSecond) {
  return kzm::bytes::plainText(kzm::bytes::diskActivity(options, bytesPerSecond));
}

kzm::AttributedString KZMUtilitiesFormatDiskActivityWithAttributes(const kzm::Dictionary& options,
                                                                   double bytesPerSecond) {
  if (kzm::bytes::isHidden(options, bytesPerSecond)) {
    return kzm::AttributedString("-", kzm::core::attributesOf(options, kzm::core::kAttributesMain));
  }
  const kzm::bytes::Reading reading = kzm::bytes::diskActivity(options, bytesPerSecond);
  return kzm::bytes::attributedText(options, reading, kzm::bytes::localizedNumber(reading).string());
}
