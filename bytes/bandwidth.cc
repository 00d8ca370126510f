#include <iterator>

#include <KZMUtilities/bytes.h>

#include "bytes/rate_ladders.h"
#include "bytes/rendering.h"
#include "bytes/scaling.h"
#include "core/options.h"
#include "core/reading.h"

namespace kzm::bytes {
namespace {

// Deliberate: the units without "/s" bear the per-second hints all the same.
// clang-format off
//   level        style                       template   translator's hint
constexpr ByteUnit kUnits[] = {
    {Level::giga, Style::briefSpaced,         "%@ G",    "gigabyte"     },
    {Level::mega, Style::briefSpaced,         "%@ M",    "megabyte"     },
    {Level::kilo, Style::briefSpaced,         "%@ K",    "kilobyte"     },
    {Level::giga, Style::brief,               "%@G",     "gigabyte"     },
    {Level::mega, Style::brief,               "%@M",     "megabyte"     },
    {Level::kilo, Style::brief,               "%@K",     "kilobyte"     },
    {Level::giga, Style::bitsSpaced,          "%@ Gb",   "gigabits/sec" },
    {Level::mega, Style::bitsSpaced,          "%@ Mb",   "megabits/sec" },
    {Level::kilo, Style::bitsSpaced,          "%@ Kb",   "kilobits/sec" },
    {Level::giga, Style::bytesSpaced,         "%@ GB",   "gigabytes/sec"},
    {Level::mega, Style::bytesSpaced,         "%@ MB",   "megabytes/sec"},
    {Level::kilo, Style::bytesSpaced,         "%@ KB",   "kilobytes/sec"},
    {Level::giga, Style::bitsTight,           "%@Gb",    "gigabits/sec" },
    {Level::mega, Style::bitsTight,           "%@Mb",    "megabits/sec" },
    {Level::kilo, Style::bitsTight,           "%@Kb",    "kilobits/sec" },
    {Level::giga, Style::bytesTight,          "%@GB",    "gigabytes/sec"},
    {Level::mega, Style::bytesTight,          "%@MB",    "megabytes/sec"},
    {Level::kilo, Style::bytesTight,          "%@KB",    "kilobytes/sec"},
    {Level::giga, Style::bitsPerSecondSpaced, "%@ Gb/s", "gigabits/sec" },
    {Level::mega, Style::bitsPerSecondSpaced, "%@ Mb/s", "megabits/sec" },
    {Level::kilo, Style::bitsPerSecondSpaced, "%@ Kb/s", "kilobits/sec" },
    {Level::giga, Style::spaced,              "%@ GB/s", "gigabytes/sec"},
    {Level::mega, Style::spaced,              "%@ MB/s", "megabytes/sec"},
    {Level::kilo, Style::spaced,              "%@ KB/s", "kilobytes/sec"},
    {Level::giga, Style::bitsPerSecondTight,  "%@Gb/s",  "gigabits/sec" },
    {Level::mega, Style::bitsPerSecondTight,  "%@Mb/s",  "megabits/sec" },
    {Level::kilo, Style::bitsPerSecondTight,  "%@Kb/s",  "kilobits/sec" },
    {Level::giga, Style::tight,               "%@GB/s",  "gigabytes/sec"},
    {Level::mega, Style::tight,               "%@MB/s",  "megabytes/sec"},
    {Level::kilo, Style::tight,               "%@KB/s",  "kilobytes/sec"},
};
// clang-format on
constexpr auto kRows = core::unitRows(kUnits);
static_assert(core::wellFormed(kRows));

// The styles of each unit size: "unitsize" 1, 2 and 3.
// clang-format off
//   bytes tight        bytes spaced        bits tight                 bits spaced
constexpr Style kStylesOfSize[][4] = {
    {Style::brief,      Style::briefSpaced, Style::brief,              Style::briefSpaced        },
    {Style::bytesTight, Style::bytesSpaced, Style::bitsTight,          Style::bitsSpaced         },
    {Style::tight,      Style::spaced,      Style::bitsPerSecondTight, Style::bitsPerSecondSpaced},
};
// clang-format on

// What the format codes 0 to 3 show, and the code that "reverse-type" makes of them. Any other code shows as 0.
// Deliberate: the swap is one-way, 3 stays 3 and never turns back into 1; any other code turns into 3.
struct Format {
  bool bits;
  Level lowest;
  std::int64_t reversed;
};
// clang-format off
//   bits   lowest level reversed
constexpr Format kFormats[] = {
    {false, Level::kilo, 2},
    {false, Level::mega, 3},
    {true,  Level::kilo, 0},
    {true,  Level::mega, 3},
};
// clang-format on
constexpr Format kOtherFormat{false, Level::kilo, 3};

constexpr Scale kBytes = times(1.0);
constexpr Scale kBits = times(8.0);

const Format& formatWithCode(std::int64_t code) {
  return code >= 0 && code < std::ssize(kFormats) ? kFormats[code] : kOtherFormat;
}

const Format& formatOf(const Dictionary& options) {
  static constexpr Key kFormat = "bandwidthformat";
  const Format& format = formatWithCode(core::readInteger(options.find(kFormat)));
  return options.contains(core::kReverseType) ? formatWithCode(format.reversed) : format;
}

Style styleOf(const Dictionary& options, bool bits) {
  static constexpr Key kUnitSize = "unitsize";
  constexpr std::int64_t kBrief = 1;
  constexpr std::int64_t kPerSecond = 3;
  std::int64_t size = options.contains(core::kShort) ? kBrief : core::readInteger(options.find(kUnitSize));
  if (size < kBrief || size > kPerSecond) size = kPerSecond;
  const bool spaced = core::readBoolean(options.find(core::kSpace));
  return kStylesOfSize[size - 1][(bits ? 2 : 0) + (spaced ? 1 : 0)];
}

constexpr ByteFamily family(Scale toBase) {
  return {{core::UnitFamily::bandwidth, kRows}, unitIndex(kUnits), toBase, core::DigitRule::exactly};
}
constexpr ByteFamily kInBytes = family(kBytes);
constexpr ByteFamily kInBits = family(kBits);

Reading bandwidth(const Dictionary& options, double bytesPerSecond) {
  const Format& format = formatOf(options);
  const Ladder ladder = rateLadder(options, format.lowest);
  return scaled(format.bits ? kInBits : kInBytes, ladder, styleOf(options, format.bits), options, bytesPerSecond);
}

// Deliberate: two styles of one text differ when there are no decimals. The plain one groups thousands in the locale's
// way, the attributed one never does.
std::string attributedNumber(const Reading& reading) {
  return reading.decimals <= 0 ? core::plainWhole(reading.value) : localizedNumber(reading).string();
}

}  // namespace
}  // namespace kzm::bytes

kzm::Dictionary KZMUtilitiesBandwidthData(const kzm::Dictionary& options, double bytesPerSecond) {
  return kzm::bytes::dataOf(kzm::bytes::bandwidth(options, bytesPerSecond));
}

std::string KZMUtilitiesFormatBandwidth(const kzm::Dictionary& options, double bytesPerSecond) {
  return kzm::bytes::plainText(kzm::bytes::bandwidth(options, bytesPerSecond));
}

kzm::AttributedString KZMUtilitiesFormatBandwidthWithAttributes(const kzm::Dictionary& options, double bytesPerSecond) {
  const kzm::bytes::Reading reading = kzm::bytes::bandwidth(options, bytesPerSecond);
  return kzm::bytes::attributedText(options, reading, kzm::bytes::attributedNumber(reading));
}
