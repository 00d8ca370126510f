// Network and disk activity as rows of the panel.
#ifndef KZM_EXAMPLES_PANEL_ACTIVITY_H
#define KZM_EXAMPLES_PANEL_ACTIVITY_H

#include <vector>

#include "machine/files.h"
#include "machine/rates.h"
#include "row.h"

namespace kzm::panel {

/// What means something only when there is a second reading.
struct ActivitySamples {
  machine::Sample network;  // of interfaces that were used, without what the machine sends to itself
  machine::Sample disks;
};

[[nodiscard]] ActivitySamples readActivity(const machine::Root& root);

/// The rates between two readings, as meters: that of all interfaces together and that of all disks, which are named
/// beside it.
[[nodiscard]] std::vector<Row> activityRows(const ActivitySamples& earlier, const ActivitySamples& later);

}  // namespace kzm::panel

#endif
