// The whole screen of the monitor.
#ifndef KZM_CLI_MONITOR_PAGE_H
#define KZM_CLI_MONITOR_PAGE_H

#include <cstddef>

#include "cli/monitor/panel.h"
#include "cli/terminal/frame.h"

namespace kzm::cli {

/// What the user has chosen by keys.
struct Choices {
  std::size_t scrolled = 0;  // lines
  bool paused = false;
  bool help = false;
  double seconds = 1.0;          // between two readings
  const Topic* topic = nullptr;  // this one alone; null for all
};

struct Page {
  Frame frame;
  std::size_t mostScrolled = 0;  // the choice beyond which there is nothing
  std::size_t lines = 0;         // of the content that are seen at once
};

[[nodiscard]] Page pageOf(const Scene& scene, const Choices& choices, Size size);

}  // namespace kzm::cli

#endif
