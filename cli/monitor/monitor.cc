#include "cli/monitor/monitor.h"

#include <algorithm>
#include <vector>

#include "cli/monitor/controls.h"
#include "cli/monitor/page.h"
#include "cli/terminal/terminal.h"

namespace kzm::cli {
namespace {

class Monitor {
 public:
  Monitor(Watch& watch, const MonitorOptions& options)
      : watch_(watch), options_(options), texts_(options.bandwidth), terminal_(options.dress) {
    controls_.choices.seconds = options.seconds;
  }

  // Until the user, or the count of readings, ends it.
  void run() {
    constexpr double kFirstSeconds = 0.3;  // enough to know a rate, and nobody waits for it
    constexpr double kNever = 1e18;
    due_ = watch_.seconds() + (watch_.needsTime() ? std::min(kFirstSeconds, options_.seconds) : 0.0);
    bool goesOn = true;
    while (goesOn) {
      goesOn = happened(terminal_.wait(controls_.choices.paused ? kNever : due_));
      goesOn = drawn() && goesOn;
    }
  }

 private:
  // False at the end.
  bool happened(Terminal::Event event) {
    if (event == Terminal::Event::due) return read();
    return event != Terminal::Event::ended &&
           std::ranges::all_of(terminal_.keys(), [this](Key key) { return pressed(key); });
  }

  bool read() {
    const double before = watch_.seconds();
    groups_ = watch_.read();
    tracks_.add(groups_, watch_.seconds() - before);
    due_ = std::max(due_ + controls_.choices.seconds, watch_.seconds());
    controls_.topics.clear();
    for (const Group& group : groups_) {
      if (!group.items.empty()) controls_.topics.push_back(group.topic);
    }
    return ++readings_ != options_.count;
  }

  bool drawn() {
    if (groups_.empty()) return true;
    Page page = pageOf({groups_, tracks_, texts_}, controls_.choices, Terminal::size());
    controls_.mostScrolled = page.mostScrolled;
    controls_.lines = page.lines;
    controls_.choices.scrolled = std::min(controls_.choices.scrolled, page.mostScrolled);
    return terminal_.show(std::move(page.frame));
  }

  bool pressed(Key key) {
    const bool otherUnit = controls_.otherUnit;
    const double seconds = controls_.choices.seconds;
    press(key, controls_);
    if (key == Key::redraw) terminal_.forget();
    if (controls_.otherUnit != otherUnit) texts_ = Texts(bandwidth());
    if (controls_.choices.seconds != seconds) due_ = watch_.seconds() + controls_.choices.seconds;
    return key != Key::quit;
  }

  [[nodiscard]] Dictionary bandwidth() const {
    constexpr int kBits = 2;
    Dictionary bandwidth = options_.bandwidth;
    const bool asksForBits = bandwidth.find("bandwidthformat") != nullptr;
    bandwidth.set("bandwidthformat", asksForBits == controls_.otherUnit ? 0 : kBits);
    return bandwidth;
  }

  Watch& watch_;
  const MonitorOptions& options_;
  Texts texts_;
  Terminal terminal_;
  Controls controls_;
  Tracks tracks_;
  std::vector<Group> groups_;
  double due_ = 0;
  std::int64_t readings_ = 0;
};

}  // namespace

int monitor(Watch& watch, const MonitorOptions& options) {
  Monitor(watch, options).run();
  return 0;
}

}  // namespace kzm::cli
