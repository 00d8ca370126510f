#include <KZMUtilities/bytes.h>

#include "bytes/bandwidth_format.h"
#include "bytes/rate_ladders.h"
#include "bytes/readings.h"
#include "bytes/scaling.h"

namespace kzm::bytes {
namespace {

// Deliberate: the units without "/s" have the per-second hints all the same
// (Lookups.BandwidthUnitsWithoutPerSecondHaveItsHintsAllTheSame).
// clang-format off
//    form                   level         spacing          template    translator's hint
constexpr UnitText kTexts[] = {
    {{Form::brief,           Level::giga}, Spacing::spaced, "%@ G",     "gigabyte"},
    {{Form::brief,           Level::mega}, Spacing::spaced, "%@ M",     "megabyte"},
    {{Form::brief,           Level::kilo}, Spacing::spaced, "%@ K",     "kilobyte"},
    {{Form::brief,           Level::giga}, Spacing::tight,  "%@G",      "gigabyte"},
    {{Form::brief,           Level::mega}, Spacing::tight,  "%@M",      "megabyte"},
    {{Form::brief,           Level::kilo}, Spacing::tight,  "%@K",      "kilobyte"},
    {{Form::bits,            Level::giga}, Spacing::spaced, "%@ Gb",    "gigabits/sec"},
    {{Form::bits,            Level::mega}, Spacing::spaced, "%@ Mb",    "megabits/sec"},
    {{Form::bits,            Level::kilo}, Spacing::spaced, "%@ Kb",    "kilobits/sec"},
    {{Form::bytes,           Level::giga}, Spacing::spaced, "%@ GB",    "gigabytes/sec"},
    {{Form::bytes,           Level::mega}, Spacing::spaced, "%@ MB",    "megabytes/sec"},
    {{Form::bytes,           Level::kilo}, Spacing::spaced, "%@ KB",    "kilobytes/sec"},
    {{Form::bits,            Level::giga}, Spacing::tight,  "%@Gb",     "gigabits/sec"},
    {{Form::bits,            Level::mega}, Spacing::tight,  "%@Mb",     "megabits/sec"},
    {{Form::bits,            Level::kilo}, Spacing::tight,  "%@Kb",     "kilobits/sec"},
    {{Form::bytes,           Level::giga}, Spacing::tight,  "%@GB",     "gigabytes/sec"},
    {{Form::bytes,           Level::mega}, Spacing::tight,  "%@MB",     "megabytes/sec"},
    {{Form::bytes,           Level::kilo}, Spacing::tight,  "%@KB",     "kilobytes/sec"},
    {{Form::bitsPerSecond,   Level::giga}, Spacing::spaced, "%@ Gb/s",  "gigabits/sec"},
    {{Form::bitsPerSecond,   Level::mega}, Spacing::spaced, "%@ Mb/s",  "megabits/sec"},
    {{Form::bitsPerSecond,   Level::kilo}, Spacing::spaced, "%@ Kb/s",  "kilobits/sec"},
    {{Form::bytesPerSecond,  Level::giga}, Spacing::spaced, "%@ GB/s",  "gigabytes/sec"},
    {{Form::bytesPerSecond,  Level::mega}, Spacing::spaced, "%@ MB/s",  "megabytes/sec"},
    {{Form::bytesPerSecond,  Level::kilo}, Spacing::spaced, "%@ KB/s",  "kilobytes/sec"},
    {{Form::bitsPerSecond,   Level::giga}, Spacing::tight,  "%@Gb/s",   "gigabits/sec"},
    {{Form::bitsPerSecond,   Level::mega}, Spacing::tight,  "%@Mb/s",   "megabits/sec"},
    {{Form::bitsPerSecond,   Level::kilo}, Spacing::tight,  "%@Kb/s",   "kilobits/sec"},
    {{Form::bytesPerSecond,  Level::giga}, Spacing::tight,  "%@GB/s",   "gigabytes/sec"},
    {{Form::bytesPerSecond,  Level::mega}, Spacing::tight,  "%@MB/s",   "megabytes/sec"},
    {{Form::bytesPerSecond,  Level::kilo}, Spacing::tight,  "%@KB/s",   "kilobytes/sec"},
};
// clang-format on
constexpr auto kRows = core::unitRows("Units.Network.", kTexts);
constexpr UnitIndex kIndex = unitIndex(kTexts);
static_assert(core::wellFormed(kTexts));

constexpr core::UnitTable kBandwidthTable{"Localizations-Units-Network", kRows};

// The forms of each unit size: "unitsize" 1, 2 and 3.
constexpr Form kFormsOfSize[][2] = {
    {Form::brief, Form::brief},
    {Form::bytes, Form::bits},
    {Form::bytesPerSecond, Form::bitsPerSecond},
};

// Deliberate: bandwidth reads "short" by presence, so false counts too; other families read a boolean
// (Bandwidth.UnitSizes).
Form formOf(const Dictionary& options, bool countsBits) {
  static constexpr Key kUnitSize = "unitsize";
  constexpr std::int64_t kBrief = 1;
  constexpr std::int64_t kPerSecond = 3;
  std::int64_t size = options.contains(core::kShort) ? kBrief : core::readInteger(options.find(kUnitSize));
  if (size < kBrief || size > kPerSecond) size = kPerSecond;
  return kFormsOfSize[size - 1][countsBits ? 1 : 0];
}

}  // namespace

core::Reading bandwidth(const Dictionary& options, double bytesPerSecond) {
  constexpr double kBitsPerByte = 8.0;
  const BandwidthFormat& format = bandwidthFormat(options);
  const Scaled rate = scaled(rateLadder(options, format.lowest), options,
                             format.countsBits ? bytesPerSecond * kBitsPerByte : bytesPerSecond);
  const UnitStyle style{formOf(options, format.countsBits), core::readSpacing(options)};
  return reading(rate, kIndex, style, core::Digits::exactly);
}

// Deliberate: two styles of one text differ when there are no decimals. The plain one groups thousands in the locale's
// way, the attributed one never does (Bandwidth.WithoutDecimalsTheAttributedNumberIsNeverGrouped).
core::Reading attributedBandwidth(const Dictionary& options, double bytesPerSecond) {
  core::Reading shown = bandwidth(options, bytesPerSecond);
  if (shown.amount.decimals <= 0) shown.amount.digits = core::Digits::plain;
  return shown;
}

}  // namespace kzm::bytes

kzm::Dictionary KZMUtilitiesBandwidthData(const kzm::Dictionary& options, double bytesPerSecond) {
  using namespace kzm::bytes;
  return kzm::core::data<kBandwidthTable>(bandwidth(options, bytesPerSecond));
}

[[gnu::flatten]] std::string KZMUtilitiesFormatBandwidth(const kzm::Dictionary& options, double bytesPerSecond) {
  using namespace kzm::bytes;
  return kzm::core::text<kBandwidthTable>(bandwidth(options, bytesPerSecond));
}

kzm::AttributedString KZMUtilitiesFormatBandwidthWithAttributes(const kzm::Dictionary& options, double bytesPerSecond) {
  using namespace kzm::bytes;
  return kzm::core::attributedText<kBandwidthTable>(attributedBandwidth(options, bytesPerSecond), options);
}
