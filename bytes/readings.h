// What each family makes of a value: its row of unit text and its number.
#ifndef KZM_BYTES_READINGS_H
#define KZM_BYTES_READINGS_H

#include <KZMUtilities/dictionary.h>

#include "core/rendering.h"

namespace kzm::bytes {

[[nodiscard]] core::Reading bandwidth(const Dictionary& options, double bytesPerSecond);
/// As text with attributes shows it.
[[nodiscard]] core::Reading attributedBandwidth(const Dictionary& options, double bytesPerSecond);
[[nodiscard]] core::Reading diskActivity(const Dictionary& options, double bytesPerSecond);
[[nodiscard]] core::Reading diskSpace(const Dictionary& options, double bytes);
[[nodiscard]] core::Reading memory(const Dictionary& options, double bytes);

}  // namespace kzm::bytes

#endif
