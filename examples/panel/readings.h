// This machine's readings as rows of the panel.
#ifndef KZM_EXAMPLES_PANEL_READINGS_H
#define KZM_EXAMPLES_PANEL_READINGS_H

#include <vector>

#include "machine/files.h"
#include "row.h"

namespace kzm::panel {

/// A row for everything that the machine reports; what it does not have is left out. Takes half a second, which is
/// between the two samples that rates are made of.
[[nodiscard]] std::vector<Row> readRows(const machine::Root& root);

}  // namespace kzm::panel

#endif
