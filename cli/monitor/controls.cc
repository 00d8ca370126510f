#include "cli/monitor/controls.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace kzm::cli {
namespace {

constexpr std::array kIntervals = {0.1, 0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 30.0, 60.0, 300.0, 900.0, 3600.0};
constexpr std::ptrdiff_t kWheel = 3;  // lines

double slower(double seconds) {
  const auto* next = std::ranges::upper_bound(kIntervals, seconds);
  return next == kIntervals.end() ? kIntervals.back() : *next;
}

double faster(double seconds) {
  const auto* next = std::ranges::lower_bound(kIntervals, seconds);
  return next == kIntervals.begin() ? kIntervals.front() : *(next - 1);
}

void scroll(std::ptrdiff_t lines, Controls& controls) {
  const auto most = static_cast<std::ptrdiff_t>(controls.mostScrolled);
  const auto now = static_cast<std::ptrdiff_t>(controls.choices.scrolled);
  controls.choices.scrolled = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(now + lines, 0, most));
}

std::ptrdiff_t pageOf(const Controls& controls) { return static_cast<std::ptrdiff_t>(controls.lines); }

// All topics, then each alone.
void showNext(Controls& controls) {
  const Topics& topics = controls.topics;
  const auto shown = std::ranges::find(topics, controls.choices.topic);
  const auto next = shown == topics.end() ? topics.begin() : shown + 1;
  controls.choices.topic = next == topics.end() ? nullptr : *next;
  controls.choices.scrolled = 0;
}

struct Action {
  Key key;
  void (*act)(Controls& controls);
};

// clang-format off
constexpr Action kActions[] = {
    {Key::escape,    [](Controls& controls) { controls.choices.help = false; }},
    {Key::help,      [](Controls& controls) { controls.choices.help = !controls.choices.help; }},
    {Key::up,        [](Controls& controls) { scroll(-1, controls); }},
    {Key::down,      [](Controls& controls) { scroll(1, controls); }},
    {Key::wheelUp,   [](Controls& controls) { scroll(-kWheel, controls); }},
    {Key::wheelDown, [](Controls& controls) { scroll(kWheel, controls); }},
    {Key::pageUp,    [](Controls& controls) { scroll(-pageOf(controls), controls); }},
    {Key::pageDown,  [](Controls& controls) { scroll(pageOf(controls), controls); }},
    {Key::first,     [](Controls& controls) { controls.choices.scrolled = 0; }},
    {Key::last,      [](Controls& controls) { controls.choices.scrolled = controls.mostScrolled; }},
    {Key::pause,     [](Controls& controls) { controls.choices.paused = !controls.choices.paused; }},
    {Key::slower,    [](Controls& controls) { controls.choices.seconds = slower(controls.choices.seconds); }},
    {Key::faster,    [](Controls& controls) { controls.choices.seconds = faster(controls.choices.seconds); }},
    {Key::bits,      [](Controls& controls) { controls.otherUnit = !controls.otherUnit; }},
    {Key::shown,     showNext},
};
// clang-format on

}  // namespace

void press(Key key, Controls& controls) {
  const auto* action = std::ranges::find(kActions, key, &Action::key);
  if (action != std::end(kActions)) action->act(controls);
}

}  // namespace kzm::cli
