// The verbs `show` and `monitor`: this machine's readings, once and again and again.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <iostream>
#include <limits>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "cli/flags.h"
#include "cli/numbers.h"
#include "cli/show/screen.h"
#include "cli/show/topics.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

struct ShowOptions {
  RowChoice rows;
  double seconds = 1.0;    // between two readings
  std::int64_t count = 0;  // of drawings; 0 is no end
  bool plain = false;
};

using ShowFlag = Flag<ShowOptions>;
using Text = std::string_view;

void useInterval(ShowOptions& options, Text, Text value) {
  constexpr double kLeast = 0.1;
  constexpr double kMost = 3600.0;
  options.seconds = numberIn(value);
  if (!(options.seconds >= kLeast && options.seconds <= kMost))
    throw InputError(inQuotes(value) + " is not from 0.1 to 3600");
}

constexpr ShowFlag kBits{{"--bits", "", "network in bits instead of bytes"},
                         [](ShowOptions& options, Text, Text) { options.rows.bandwidth.set("bandwidthformat", 2); }};
constexpr ShowFlag kUnitSize{
    {"--unit-size", "N", "network units: 1 \"M\", 2 \"MB\", 3 \"MB/s\""},
    [](ShowOptions& options, Text, Text value) { options.rows.bandwidth.set("unitsize", integerIn(value, 1, 3)); }};
constexpr ShowFlag kInterface{
    {"--interface", "NAME", "this interface alone; repeatable"},
    [](ShowOptions& options, Text, Text value) { options.rows.interfaces.emplace_back(value); }};
constexpr ShowFlag kAll{{"--all", "", "also what was never used, every processor and every sensor"},
                        [](ShowOptions& options, Text, Text) { options.rows.all = true; }};
constexpr ShowFlag kNoColor{{"--no-color", "", "without bold and faint text"},
                            [](ShowOptions& options, Text, Text) { options.plain = true; }};
constexpr ShowFlag kInterval{{"--interval", "SECONDS", "time between two readings, 0.1 to 3600; 1 without it"},
                             useInterval};
constexpr ShowFlag kCount{{"--count", "N", "ends after the given number of drawings"},
                          [](ShowOptions& options, Text, Text value) {
                            options.count = integerIn(value, 1, std::numeric_limits<std::int64_t>::max());
                          }};

constexpr ShowFlag kShowFlags[] = {kBits, kUnitSize, kInterface, kAll, kInterval, kNoColor};
constexpr ShowFlag kMonitorFlags[] = {kBits, kUnitSize, kInterface, kAll, kInterval, kCount, kNoColor};

using Topics = std::span<const Topic>;

const machine::Root& thisMachine() {
  static const machine::Root root("/");
  return root;
}

Description describe(Text usage, std::span<const ShowFlag> flags) {
  Description verb{.usage = {usage}, .text = "Without a topic: all of them.\n", .flags = textsOf(flags)};
  for (const Topic& topic : topics()) verb.choices.push_back({.name = topic.name, .help = topic.does});
  return verb;
}

Topics topicsIn(Text verb, const std::vector<Text>& words) {
  if (words.empty()) return topics();
  if (words.size() > 1) throw InputError(std::string(verb) + " takes one topic");
  std::string names;
  for (const Topic& topic : topics()) {
    if (topic.name == words[0]) return {&topic, 1};
    names.append(names.empty() ? "" : ", ").append(topic.name);
  }
  throw InputError(std::string(verb) + ": no topic " + inQuotes(words[0]) + "; there are " + names);
}

// Every interface that was asked for is there.
void checkInterfaces(Text verb, const ShowOptions& options, const Counters& counters) {
  for (const std::string& wanted : options.rows.interfaces) {
    std::string names;
    bool found = false;
    for (const machine::Counter& counter : counters.network.counters) {
      found = found || counter.name == wanted;
      names.append(names.empty() ? "" : ", ").append(counter.name);
    }
    if (!found) throw InputError(std::string(verb) + ": no interface " + inQuotes(wanted) + "; there are " + names);
  }
}

// A topic that was asked for by name says so when there is nothing to show.
std::vector<Section> sectionsOf(Topics shown, Snapshot snapshot, const ShowOptions& options) {
  for (const Topic& topic : shown) topic.read(thisMachine(), snapshot);
  std::vector<Section> sections;
  for (const Topic& topic : shown) sections.push_back(topic.section(snapshot, options.rows));
  if (shown.size() == 1 && sections[0].rows.empty()) sections[0] = {sections[0].title, {}, {{"–", {}}}};
  return sections;
}

bool needsTime(Topics shown) {
  return std::any_of(shown.begin(), shown.end(), [](const Topic& topic) { return topic.needsTime; });
}

int showOnce(Topics shown, const Counters& first, const ShowOptions& options) {
  Counters last = first;
  if (needsTime(shown)) {
    std::this_thread::sleep_for(std::chrono::duration<double>(options.seconds));
    last = readCounters(thisMachine());
  }
  const std::vector<Section> sections = sectionsOf(shown, ratesOf(first, last), options);
  for (const std::string& line : laidOut(sections, lookOfOutput(options.plain))) std::cout << line << '\n';
  return std::cout.flush() ? 0 : 1;
}

// Waits for the time, and draws the sections again whenever the terminal has another size; false when it is to end.
bool waited(Screen& screen, double until, const std::vector<Section>& sections, const ShowOptions& options) {
  for (;;) {
    const Screen::Event event = screen.wait(until);
    if (event != Screen::Event::resized) return event == Screen::Event::due;
    if (!sections.empty() && !screen.draw(laidOut(sections, lookOfOutput(options.plain)))) return false;
  }
}

int showContinuously(Topics shown, const Counters& first, const ShowOptions& options) {
  constexpr double kFirst = 1.0;  // the first drawing does not keep anyone waiting longer
  Counters earlier = first;
  Screen screen;
  std::vector<Section> sections;
  double due = earlier.network.seconds + (needsTime(shown) ? std::min(kFirst, options.seconds) : 0.0);
  for (std::int64_t drawings = 0; waited(screen, due, sections, options);) {
    Counters later = readCounters(thisMachine());
    sections = sectionsOf(shown, ratesOf(earlier, later), options);
    earlier = std::move(later);
    if (!screen.draw(laidOut(sections, lookOfOutput(options.plain))) || ++drawings == options.count) break;
    due = std::max(due + options.seconds, earlier.network.seconds);
  }
  return screen.readerHasLeft() ? 1 : 0;
}

int run(Text verb, Words words, std::span<const ShowFlag> flags, Description (*describeVerb)(),
        int (*show)(Topics shown, const Counters& first, const ShowOptions& options)) {
  ShowOptions options;
  const Operands operands = takeFlags<ShowOptions>(verb, words, flags, options);
  if (operands.help) {
    std::cout << helpText(describeVerb());
    return std::cout.flush() ? 0 : 1;
  }
  const Topics shown = topicsIn(verb, operands.words);
  const Counters first = readCounters(thisMachine());
  checkInterfaces(verb, options, first);
  return show(shown, first, options);
}

}  // namespace

Description describeShow() { return describe("show [TOPIC] [FLAG...]", kShowFlags); }
Description describeMonitor() { return describe("monitor [TOPIC] [FLAG...]", kMonitorFlags); }

int showVerb(Words words) { return run("show", words, kShowFlags, describeShow, showOnce); }
int monitorVerb(Words words) { return run("monitor", words, kMonitorFlags, describeMonitor, showContinuously); }

}  // namespace kzm::cli
