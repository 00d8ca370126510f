// From a reading to what the caller gets: a result Dictionary, a string, or text in two styles.
#ifndef KZM_BYTES_RENDERING_H
#define KZM_BYTES_RENDERING_H

#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dictionary.h>

#include "bytes/scaling.h"
#include "core/number_text.h"

namespace kzm::bytes {

/// {"format", "decimals", "value"}. "format" is null only when a host's own table lacks the unit.
[[nodiscard]] Dictionary dataOf(const Reading& reading);

/// The number in the locale's style, with the reading's decimals.
[[nodiscard]] core::NumberText localizedNumber(const Reading& reading);

/// The unit text with the number in its place; empty when there is no unit text.
[[nodiscard]] std::string plainText(const Reading& reading);

/// The same composed of number and unit, each in its attributes from the options.
[[nodiscard]] AttributedString attributedText(const Dictionary& options, const Reading& reading,
                                              std::string_view number);

}  // namespace kzm::bytes

#endif
