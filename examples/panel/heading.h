// The heading of the panel: what the clock and the calendar say.
#ifndef KZM_EXAMPLES_PANEL_HEADING_H
#define KZM_EXAMPLES_PANEL_HEADING_H

#include "row.h"

namespace kzm::panel {

/// The heading for a time point in the default time zone.
[[nodiscard]] Heading headingAt(double timePoint);

}  // namespace kzm::panel

#endif
