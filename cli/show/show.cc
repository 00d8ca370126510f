// The verbs `show` and `monitor`: this machine's readings, once and again and again.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include <KZMUtilities/dictionary.h>

#include "cli/flags.h"
#include "cli/listing.h"
#include "cli/monitor/monitor.h"
#include "cli/numbers.h"
#include "cli/output.h"
#include "cli/show/feed.h"
#include "cli/show/outputs.h"
#include "cli/show/watch.h"
#include "cli/terminal/terminal.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

struct ShowOptions {
  RowChoice rows;
  Dictionary bandwidth;    // options of KZMUtilitiesFormatBandwidth
  double seconds = 1.0;    // between two readings
  std::int64_t count = 0;  // of drawings; 0 is no end
  bool plain = false;
  const Output* output = outputs().data();
  bool constantWidth = false;
};

using ShowFlag = Flag<ShowOptions>;
using Text = std::string_view;

// The row of a table that has the name.
template <class Row>
const Row& rowNamed(std::span<const Row> rows, Text kind, Text name) {
  std::string names;
  for (const Row& row : rows) {
    if (row.name == name) return row;
    addToList(names, row.name);
  }
  throw InputError("no " + std::string(kind) + " " + inQuotes(name) + "; there are " + names);
}

void useInterval(ShowOptions& options, Text, Text value) {
  constexpr double kLeastSeconds = 0.1;
  constexpr double kMostSeconds = 3600.0;
  options.seconds = numberIn(value);
  if (!(options.seconds >= kLeastSeconds && options.seconds <= kMostSeconds))
    throw InputError(inQuotes(value) + " is not from 0.1 to 3600");
}

constexpr ShowFlag kBits{{"--bits", "", "network in bits instead of bytes"},
                         [](ShowOptions& options, Text, Text) { options.bandwidth.set("bandwidthformat", 2); }};
constexpr ShowFlag kUnitSize{
    {"--unit-size", "N", "network units: 1 \"M\", 2 \"MB\", 3 \"MB/s\""},
    [](ShowOptions& options, Text, Text value) { options.bandwidth.set("unitsize", integerIn(value, 1, 3)); }};
constexpr ShowFlag kInterface{
    {"--interface", "NAME", "this interface alone; repeatable"},
    [](ShowOptions& options, Text, Text value) { options.rows.interfaces.emplace_back(value); }};
constexpr ShowFlag kAll{{"--all", "", "also what was never used, every processor and every sensor"},
                        [](ShowOptions& options, Text, Text) { options.rows.all = true; }};
constexpr ShowFlag kNoColor{{"--no-color", "", "without colors, bold and faint text"},
                            [](ShowOptions& options, Text, Text) { options.plain = true; }};
constexpr ShowFlag kInterval{{"--interval", "SECONDS", "time between two readings, 0.1 to 3600; 1 without it"},
                             useInterval};
constexpr ShowFlag kCount{{"--count", "N", "ends after the given number of drawings"},
                          [](ShowOptions& options, Text, Text value) {
                            options.count = integerIn(value, 1, std::numeric_limits<std::int64_t>::max());
                          }};

constexpr ShowFlag kOutput{
    {"--output", "FORM", "for programs: json, waybar, i3bar, polybar or plain; else a table"},
    [](ShowOptions& options, Text, Text value) { options.output = &rowNamed(outputs(), "output", value); }};
constexpr ShowFlag kConstantWidth{{"--constant-width", "", "in a bar, room for the longest text of each reading"},
                                  [](ShowOptions& options, Text, Text) { options.constantWidth = true; }};

constexpr ShowFlag kShowFlags[] = {kBits, kUnitSize, kInterface, kAll, kInterval, kNoColor, kOutput, kConstantWidth};
constexpr ShowFlag kMonitorFlags[] = {kBits,  kUnitSize, kInterface, kAll,          kInterval,
                                      kCount, kNoColor,  kOutput,    kConstantWidth};

Description describe(Text usage, Text text, std::span<const ShowFlag> flags) {
  Description verb{.usage = {usage}, .text = text, .flags = textsOf(flags)};
  for (const Topic& topic : topics()) verb.choices.push_back({.name = topic.name, .help = topic.does});
  return verb;
}

Topics topicsIn(const std::vector<Text>& words) {
  Topics shown;
  for (const Text word : words) {
    const Topic* topic = &rowNamed(topics(), "topic", word);
    if (std::ranges::find(shown, topic) == shown.end()) shown.push_back(topic);
  }
  if (!shown.empty()) return shown;
  for (const Topic& topic : topics()) shown.push_back(&topic);
  return shown;
}

// The look of standard output as it is now.
Look lookOfOutput(bool plain) {
  Look look;
  if (!writesToTerminal()) return look;
  look.styles = dressOfOutput(plain) == Dress::colors;
  if (const Size size = sizeOfOutput(); size.columns > 0) look.columns = size.columns;
  return look;
}

// The whole text of a refresh.
std::string tableOf(const std::vector<Group>& groups, const Texts& texts, const Look& look) {
  std::string text;
  for (const std::string& line : laidOut(sectionsOf(groups, texts), look)) text += line + "\n";
  return text;
}

std::string lineOf(const std::vector<Group>& groups, const Texts& texts, const ShowOptions& options) {
  return options.output->line(groups, {texts, options.constantWidth}) + "\n";
}

int showOnce(Watch& watch, const ShowOptions& options) {
  const Texts texts(options.bandwidth);
  if (watch.needsTime()) std::this_thread::sleep_for(std::chrono::duration<double>(options.seconds));
  const std::vector<Group> groups = watch.read();
  std::string text(options.output->first);
  text += options.output->line == nullptr ? tableOf(groups, texts, lookOfOutput(options.plain))
                                          : lineOf(groups, texts, options);
  return print(text.append(options.output->last));
}

int showContinuously(Watch& watch, const ShowOptions& options) {
  constexpr double kFirstSeconds = 1.0;  // the first drawing does not keep anyone waiting longer
  const bool isTable = options.output->line == nullptr;
  if (isTable && writesToTerminal())
    return monitor(watch, {options.bandwidth, options.seconds, options.count, dressOfOutput(options.plain)});
  const Texts texts(options.bandwidth);
  Feed feed;
  if (!feed.write(options.output->first)) return 1;
  double due = watch.seconds() + (watch.needsTime() ? std::min(kFirstSeconds, options.seconds) : 0.0);
  for (std::int64_t drawings = 0; feed.waited(due);) {
    const std::vector<Group> groups = watch.read();
    const std::string_view between = isTable && drawings > 0 ? "\n" : "";
    const std::string text = isTable ? tableOf(groups, texts, {}) : lineOf(groups, texts, options);
    if (!feed.write(std::string(between) + text) || ++drawings == options.count) break;
    due = std::max(due + options.seconds, watch.seconds());
  }
  return feed.readerHasLeft() || !feed.write(options.output->last) ? 1 : 0;
}

void checkWidth(const ShowOptions& options) {
  if (!options.constantWidth || options.output->takesWidth) return;
  std::string names;
  for (const Output& output : outputs()) {
    if (output.takesWidth) addToList(names, output.name);
  }
  throw InputError("--constant-width goes with --output " + names);
}

int run(Text verb, Words words, std::span<const ShowFlag> flags, Description (*describeVerb)(),
        int (*show)(Watch& watch, const ShowOptions& options)) {
  ShowOptions options;
  const Operands operands = takeFlags<ShowOptions>(verb, words, flags, options);
  if (operands.help) return print(helpText(describeVerb()));
  try {
    checkWidth(options);
    Watch watch(machine::Root("/"), topicsIn(operands.words), options.rows);
    return show(watch, options);
  } catch (const InputError& error) {
    throw InputError(std::string(verb) + ": " + error.what());
  }
}

}  // namespace

Description describeShow() {
  return describe("show [TOPIC...] [FLAG...]", "Without a topic: all of them.\n", kShowFlags);
}
Description describeMonitor() {
  return describe("monitor [TOPIC...] [FLAG...]",
                  "Without a topic: all of them. On a terminal the key ? lists the others.\n", kMonitorFlags);
}

int showVerb(Words words) { return run("show", words, kShowFlags, describeShow, showOnce); }
int monitorVerb(Words words) { return run("monitor", words, kMonitorFlags, describeMonitor, showContinuously); }

}  // namespace kzm::cli
