// What the option "bandwidthformat" asks for: bits or bytes, and the lowest level.
#ifndef KZM_BYTES_BANDWIDTH_FORMAT_H
#define KZM_BYTES_BANDWIDTH_FORMAT_H

#include <cstdint>
#include <iterator>

#include <KZMUtilities/dictionary.h>

#include "bytes/family.h"
#include "core/option_values.h"

namespace kzm::bytes {

struct BandwidthFormat {
  bool countsBits;
  Level lowest;
  std::int64_t reversed;  // the code that "reverse-type" makes of this one
};

// By code.
// Deliberate: "reverse-type" swaps one way only, 3 stays 3 and never turns back into 1; any other code turns into 3
// (Bandwidth.TheReversedFormatIsOneWay).
// clang-format off
//   bits   lowest       reversed
inline constexpr BandwidthFormat kBandwidthFormats[] = {
    {false, Level::kilo, 2},
    {false, Level::mega, 3},
    {true,  Level::kilo, 0},
    {true,  Level::mega, 3},
};
// clang-format on
inline constexpr BandwidthFormat kOtherBandwidthFormat{false, Level::kilo, 3};

[[nodiscard]] inline const BandwidthFormat& bandwidthFormat(std::int64_t code) noexcept {
  return code >= 0 && code < std::ssize(kBandwidthFormats) ? kBandwidthFormats[code] : kOtherBandwidthFormat;
}

[[nodiscard]] inline const BandwidthFormat& bandwidthFormat(const Dictionary& options) {
  static constexpr Key kFormat = "bandwidthformat";
  const BandwidthFormat& format = bandwidthFormat(core::readInteger(options.find(kFormat)));
  return options.contains(core::kReverseType) ? bandwidthFormat(format.reversed) : format;
}

}  // namespace kzm::bytes

#endif
