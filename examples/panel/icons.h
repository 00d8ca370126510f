// Icons made at run time: lines on a grid of 24 by 24, as black shapes to be tinted.
#ifndef KZM_EXAMPLES_PANEL_ICONS_H
#define KZM_EXAMPLES_PANEL_ICONS_H

#include <KZMUtilities/drawing.h>

namespace kzm::panel {

enum class Icon { received, sent, read, written, memory, space, load, frequency, temperature, fan, battery };

/// The icon in black, `side` points wide and high, with `scale` pixels to the point.
[[nodiscard]] Image iconImage(Icon icon, double side, double scale);

}  // namespace kzm::panel

#endif
