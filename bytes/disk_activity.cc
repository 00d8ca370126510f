#include <KZMUtilities/bytes.h>

#include "bytes/rate_ladders.h"
#include "bytes/readings.h"
#include "bytes/scaling.h"

namespace kzm::bytes {
namespace {

// Deliberate: the translator hints are wrong on purpose: the list petabyte to kilobyte is applied to the first five
// rows in order (Lookups.ActivityHintsAreLaidOnTheFirstFiveRowsAsTheyCome).
// clang-format off
//    form                  level          spacing          template    translator's hint
constexpr UnitText kTexts[] = {
    {{Form::brief,          Level::giga},  Spacing::tight,  "%@G",      "petabyte"},
    {{Form::brief,          Level::mega},  Spacing::tight,  "%@M",      "terabyte"},
    {{Form::brief,          Level::kilo},  Spacing::tight,  "%@K",      "gigabyte"},
    {{Form::bytesPerSecond, Level::giga},  Spacing::spaced, "%@ GB/s",  "megabyte"},
    {{Form::bytesPerSecond, Level::mega},  Spacing::spaced, "%@ MB/s",  "kilobyte"},
    {{Form::bytesPerSecond, Level::kilo},  Spacing::spaced, "%@ KB/s",  nullptr},
    {{Form::bytesPerSecond, Level::giga},  Spacing::tight,  "%@GB/s",   nullptr},
    {{Form::bytesPerSecond, Level::mega},  Spacing::tight,  "%@MB/s",   nullptr},
    {{Form::bytesPerSecond, Level::kilo},  Spacing::tight,  "%@KB/s",   nullptr},
};
// clang-format on
constexpr auto kRows = core::unitRows("Units.Activity.", kTexts);
constexpr UnitIndex kIndex = unitIndex(kTexts);
static_assert(core::wellFormed(kTexts));

// Deliberate: the keys of disk activity begin with "Units.Activity.", its cache key ends in "DiskActivity"
// (Lookups.ActivityKeysDifferFromItsCacheKey).
constexpr core::UnitTable kDiskActivityTable{"Localizations-Units-DiskActivity", kRows};

// "hide-bytes" hides rates below one kilobyte per second. NaN is not below.
constexpr double kLeastBytesPerSecond = 1024.0;

bool isHidden(const Dictionary& options, double bytesPerSecond) {
  static constexpr Key kHideBytes = "hide-bytes";
  return bytesPerSecond < kLeastBytesPerSecond && core::readBoolean(options.find(kHideBytes));
}

}  // namespace

core::Reading diskActivity(const Dictionary& options, double bytesPerSecond) {
  const Scaled rate = scaled(rateLadder(options, Level::kilo), options, bytesPerSecond);
  return reading(rate, kIndex, wholeUnitStyle(options, Form::bytesPerSecond), core::Digits::exactly);
}

}  // namespace kzm::bytes

kzm::Dictionary KZMUtilitiesDiskActivityData(const kzm::Dictionary& options, double bytesPerSecond) {
  using namespace kzm::bytes;
  return kzm::core::data<kDiskActivityTable>(diskActivity(options, bytesPerSecond));
}

std::string KZMUtilitiesFormatDiskActivity(const kzm::Dictionary& options, double bytesPerSecond) {
  using namespace kzm::bytes;
  return kzm::core::text<kDiskActivityTable>(diskActivity(options, bytesPerSecond));
}

kzm::AttributedString KZMUtilitiesFormatDiskActivityWithAttributes(const kzm::Dictionary& options,
                                                                   double bytesPerSecond) {
  using namespace kzm::bytes;
  if (isHidden(options, bytesPerSecond)) {
    return kzm::AttributedString("-", kzm::core::readAttributes(options, kzm::core::kAttributesMain));
  }
  return kzm::core::attributedText<kDiskActivityTable>(diskActivity(options, bytesPerSecond), options);
}
