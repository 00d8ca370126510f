// The picture of the panel.
#ifndef KZM_EXAMPLES_PANEL_LAYOUT_H
#define KZM_EXAMPLES_PANEL_LAYOUT_H

#include <vector>

#include <KZMUtilities/drawing.h>

#include "row.h"

namespace kzm::panel {

/// The room, in points, for the texts of a row: a label, a gap and another label must fit.
inline constexpr double kTextWidth = 198.0;
inline constexpr double kTextGap = 8.0;

/// The panel as a card, as high as its rows need, with `scale` pixels to the point; empty if that is too large for an
/// image. Two rows are side by side; a last one that is alone takes the whole width. Mirrored for languages that are
/// written from right to left.
[[nodiscard]] Image drawPanel(const Heading& heading, const std::vector<Row>& rows, bool rightToLeft, double scale);

}  // namespace kzm::panel

#endif
