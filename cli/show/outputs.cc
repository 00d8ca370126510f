#include "cli/show/outputs.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include <KZMUtilities/display_width.h>

#include "cli/show/placing.h"
#include "cli/words.h"
#include "core/rows.h"

namespace kzm::cli {
namespace {

using Groups = std::vector<Group>;
using OrderedJson = nlohmann::ordered_json;

// Names come from devices, but only as text that can be shown; what is no UTF-8 all the same is replaced.
std::string dumped(const OrderedJson& json) { return json.dump(-1, ' ', false, OrderedJson::error_handler_t::replace); }

// ---- What all bars share -------------------------------------------------------------------------------------------

// Of what is full, a bar shows how full.
constexpr std::string_view kLeftOut = "free";

// A text at the right of the room that it has.
std::string padded(const std::string& text, std::size_t columns, std::string_view space) {
  const std::size_t taken = std::min(displayWidth(text), columns);
  return repeated(space, columns - taken) + text;
}

// What a bar shows of one item.
struct Block {
  std::string name;
  std::string texts;
  Level level = Level::normal;
};

std::string shownIn(const Measured& reading, const LineChoice& choice, std::string_view space) {
  const std::string text = choice.texts.text(reading);
  const std::size_t columns = choice.constantWidth ? displayWidth(choice.texts.widest(reading)) : 0;
  return std::string(signOf(reading.name)) + inLine(padded(text, columns, space));
}

Block blockOf(const Item& item, const LineChoice& choice, std::string_view space) {
  Block block{inLine(item.name), {}, Level::normal};
  for (const Measured& reading : item.readings) {
    if (reading.name == kLeftOut) continue;
    block.texts += (block.texts.empty() ? "" : " ") + shownIn(reading, choice, space);
    block.level = std::max(block.level, levelOf(reading));
  }
  return block;
}

std::vector<Block> blocksOf(const Groups& groups, const LineChoice& choice, std::string_view space) {
  std::vector<Block> blocks;
  for (const Group& group : groups) {
    for (const Item& item : group.items) blocks.push_back(blockOf(item, choice, space));
  }
  return blocks;
}

std::string textOf(const Block& block) { return block.name + " " + block.texts; }

constexpr std::string_view kBetween = " | ";
constexpr std::string_view kSpace = " ";
constexpr std::string_view kFigureSpace = "\u2007";  // as wide as a digit, and not taken off at the ends

std::string_view nameOf(Level level) {
  constexpr std::string_view kNames[] = {"normal", "warning", "critical"};
  static_assert(core::haveAll<Level>(kNames));
  return kNames[static_cast<std::size_t>(level)];
}

template <class Text>
std::string joined(const std::vector<Block>& blocks, Text text) {
  std::string line;
  for (const Block& block : blocks) line.append(line.empty() ? "" : kBetween).append(text(block));
  return line;
}

// ---- The forms -----------------------------------------------------------------------------------------------------

std::string labelOf(const Topic& topic, std::string_view reading) {
  const auto* column = std::ranges::find(topic.columns, "Columns." + std::string(reading));
  return column == topic.columns.end() ? "" : word(*column);
}

OrderedJson jsonOf(const Topic& topic, const Measured& reading, const Texts& texts) {
  const bool isKnown = reading.value.has_value() && std::isfinite(*reading.value);
  return {{"name", reading.name},
          {"label", labelOf(topic, reading.name)},
          {"value", isKnown ? OrderedJson(*reading.value) : OrderedJson()},
          {"unit", unitOf(reading.quantity)},
          {"text", texts.text(reading)},
          {"widest", texts.widest(reading)},
          {"level", nameOf(levelOf(reading))}};
}

OrderedJson jsonOf(const Topic& topic, const Item& item, const Texts& texts) {
  OrderedJson readings = OrderedJson::array();
  for (const Measured& reading : item.readings) readings.push_back(jsonOf(topic, reading, texts));
  return {{"id", item.id}, {"name", item.name}, {"readings", std::move(readings)}};
}

std::string jsonLine(const Groups& groups, const LineChoice& choice) {
  OrderedJson topics = OrderedJson::array();
  bool rightToLeft = false;
  for (const Group& group : groups) {
    OrderedJson items = OrderedJson::array();
    for (const Item& item : group.items) items.push_back(jsonOf(*group.topic, item, choice.texts));
    const std::string title = word(group.topic->title);
    rightToLeft = rightToLeft || hasRightToLeft(title);
    topics.push_back({{"topic", group.topic->name}, {"title", title}, {"items", std::move(items)}});
  }
  return dumped({{"direction", rightToLeft ? "rtl" : "ltr"}, {"topics", std::move(topics)}});
}

std::string escaped(const std::string& text) {
  std::string all;
  for (const char c : text) {
    if (c == '&') {
      all += "&amp;";
    } else if (c == '<') {
      all += "&lt;";
    } else {
      all += c;
    }
  }
  return all;
}

std::optional<long> percentageOf(const Groups& groups) {
  constexpr double kPercent = 100.0;
  for (const Group& group : groups) {
    for (const Item& item : group.items) {
      const Measured& last = item.readings.back();
      if (isPart(last.quantity) && last.value.has_value())
        return std::lround(std::clamp(*last.value, 0.0, 1.0) * kPercent);
    }
  }
  return std::nullopt;
}

// The bar reads markup, in the text and in the window that opens over it.
std::string waybarLine(const Groups& groups, const LineChoice& choice) {
  const std::vector<Block> blocks = blocksOf(groups, choice, kFigureSpace);
  std::string table;
  for (const std::string& line : laidOut(sectionsOf(groups, choice.texts), {})) {
    table += (table.empty() ? "" : "\n") + line;
  }
  Level level = Level::normal;
  for (const Block& block : blocks) level = std::max(level, block.level);
  OrderedJson json{{"text", escaped(joined(blocks, textOf))},
                   {"tooltip", "<tt>" + escaped(table) + "</tt>"},
                   {"class", nameOf(level)}};
  if (const std::optional<long> percentage = percentageOf(groups)) json["percentage"] = *percentage;
  return dumped(json);
}

// The bar itself keeps the room: it knows its font.
std::string i3barLine(const Groups& groups, const LineChoice& choice) {
  OrderedJson line = OrderedJson::array();
  for (const Group& group : groups) {
    for (const Item& item : group.items) {
      const Block block = blockOf(item, {choice.texts, false}, kSpace);
      OrderedJson json{{"name", group.topic->name},
                       {"instance", item.id},
                       {"full_text", textOf(block)},
                       {"short_text", block.texts}};
      if (choice.constantWidth) {
        json["min_width"] = textOf(blockOf(item, choice, kSpace));
        json["align"] = "right";
      }
      if (block.level == Level::critical) json["urgent"] = true;
      line.push_back(std::move(json));
    }
  }
  return "," + dumped(line);
}

// A name may look like one of the bar's tags, which begin with "%{"; the colors of what is critical change places.
std::string polybarText(const Block& block) {
  std::string text = textOf(block);
  for (std::size_t at = text.find("%{"); at != std::string::npos; at = text.find("%{", at + 2))
    text.insert(at + 1, " ");
  return block.level == Level::critical ? "%{R} " + text + " %{R}" : text;
}

std::string polybarLine(const Groups& groups, const LineChoice& choice) {
  return joined(blocksOf(groups, choice, kFigureSpace), polybarText);
}

std::string plainLine(const Groups& groups, const LineChoice& choice) {
  return joined(blocksOf(groups, choice, kSpace), textOf);
}

constexpr Output kOutputs[] = {
    {"table", "for people", nullptr, false},
    {"json", "raw values, units and texts", jsonLine, false},
    {"waybar", "for a custom module of Waybar", waybarLine},
    {"i3bar", "the protocol of i3bar and swaybar", i3barLine, true, "{\"version\":1}\n[\n[]\n", "]\n"},
    {"polybar", "for a script module of Polybar", polybarLine},
    {"plain", "one line of text", plainLine},
};

}  // namespace

std::span<const Output> outputs() { return kOutputs; }

}  // namespace kzm::cli
