// What keys do.
#ifndef KZM_CLI_MONITOR_CONTROLS_H
#define KZM_CLI_MONITOR_CONTROLS_H

#include <cstddef>

#include "cli/monitor/page.h"
#include "cli/show/watch.h"
#include "cli/terminal/keys.h"

namespace kzm::cli {

struct Controls {
  Choices choices = {};
  bool otherUnit = false;  // the network is shown in bits where bytes were asked for, and the other way round
  // What the page has at the moment.
  std::size_t mostScrolled = 0;
  std::size_t lines = 0;
  Topics topics = {};  // those with something to show
};

/// Changes the choices as the key says. Keys that choose nothing are passed over.
void press(Key key, Controls& controls);

}  // namespace kzm::cli

#endif
