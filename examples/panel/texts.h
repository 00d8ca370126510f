// Readings as text in two styles: every number and every unit is written by the library.
#ifndef KZM_EXAMPLES_PANEL_TEXTS_H
#define KZM_EXAMPLES_PANEL_TEXTS_H

#include <string>
#include <vector>

#include <KZMUtilities/attributed_string.h>

#include "machine/sensors.h"
#include "styles.h"

namespace kzm::panel {

[[nodiscard]] AttributedString networkText(const Styles& styles, double bytesPerSecond);
[[nodiscard]] AttributedString diskText(const Styles& styles, double bytesPerSecond);
[[nodiscard]] AttributedString spaceText(const Styles& styles, double bytes);
[[nodiscard]] AttributedString memoryText(const Styles& styles, double bytes);
/// What a reading is: words and names, each in its own direction.
[[nodiscard]] AttributedString labelText(const std::vector<std::string>& parts);
/// A part of a whole, 0 to 1.
[[nodiscard]] AttributedString partText(const Styles& styles, double part);
[[nodiscard]] AttributedString sensorText(const Styles& styles, machine::Kind kind, double value);

}  // namespace kzm::panel

#endif
