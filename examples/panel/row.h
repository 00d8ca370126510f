// What the panel shows, as data.
#ifndef KZM_EXAMPLES_PANEL_ROW_H
#define KZM_EXAMPLES_PANEL_ROW_H

#include <cstddef>
#include <utility>
#include <vector>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/drawing.h>

#include "icons.h"

namespace kzm::panel {

/// A reading and what it is.
struct Figure {
  AttributedString label;
  AttributedString value;
};

/// An icon, a figure, one more at the far end, and bars side by side, each filled from 0 to 1.
struct Row {
  Icon icon = Icon::load;
  Color color;
  Figure main;
  Figure side;
  std::vector<double> levels;
};

/// A row without bars. All rows share saturation and brightness, so that none stands out.
[[nodiscard]] inline Row rowOf(Icon icon, double hue, Figure main, Figure side = {}) {
  return {icon, Color::fromHSBA(hue, 0.52, 0.90, 1.0), std::move(main), std::move(side), {}};
}

/// The clock, the day, and the hours of it that have passed, as bars.
struct Heading {
  AttributedString clock;
  AttributedString day;
  std::vector<double> hours;
};

/// The given number of bars that show one part of a whole, 0 to 1: full ones, then one in part, then empty ones.
[[nodiscard]] inline std::vector<double> segments(double part, int count) {
  std::vector<double> levels(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) levels[static_cast<std::size_t>(i)] = part * count - i;
  return levels;
}

}  // namespace kzm::panel

#endif
