#include "cli/format/option_flags.h"

#include <cstdint>
#include <limits>

#include "cli/numbers.h"

namespace kzm::cli {
namespace {

constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

void switchOn(Dictionary& options, std::string_view option, std::string_view) { options.set(option, true); }

void setDigits(Dictionary& options, std::string_view option, std::string_view value) {
  options.set(option, integerIn(value, kLeast, kMost));
}

void setRules(Dictionary& options, std::string_view option, std::string_view value) {
  options.set(option, decimalsRules(value));
}

void setUnitSize(Dictionary& options, std::string_view, std::string_view value) {
  options.set("unitsize", integerIn(value, 1, 3));
}

// The format code is made of two choices: 1 is "from mega up", 2 is "bits".
template <std::int64_t Bit>
void addToFormat(Dictionary& options, std::string_view, std::string_view) {
  constexpr Key kFormat = "bandwidthformat";
  const Value* before = options.find(kFormat);
  options.set(kFormat, (before != nullptr ? *before->integer() : 0) | Bit);
}

// clang-format off
constexpr OptionFlag kFlags[] = {
    {{"--bits",                "",      "bits instead of bytes"}, addToFormat<2>},
    {{"--from-mega",           "",      "never a smaller unit than mega"}, addToFormat<1>},
    {{"--reverse-type",        "",      "bits for bytes, bytes for bits; Celsius for Fahrenheit and back"}, switchOn},
    {{"--reverse",             "",      "Celsius for Fahrenheit and back"}, switchOn},
    {{"--unit-size",           "N",     "1 \"M\", 2 \"MB\" or \"Mb\", 3 \"MB/s\" or \"Mb/s\""}, setUnitSize},
    {{"--units",               "",      "the number with its unit; else the number alone"}, switchOn},
    {{"--short",               "",      "the shortest unit"}, switchOn},
    {{"--space",               "",      "a space between number and unit"}, switchOn},
    {{"--off",                 "",      "a fan that is not turning is \"Off\""}, switchOn},
    {{"--strip",               "",      "without spaces, whole numbers without separators"}, switchOn},
    {{"--early-upgrade",       "",      "the next unit from 10^6 and 10^9 on"}, switchOn},
    {{"--hide-bytes",          "",      "a dash for less than 1024 bytes per second"}, switchOn},
    {{"--decimals",            "N",     "at most N fraction digits"}, setDigits},
    {{"--decimals-kb",         "RULES", "digits of kilo units: 10:2,100:1 is 2 below 10, 1 below 100"}, setRules},
    {{"--decimals-mb",         "RULES", "the same of mega units"}, setRules},
    {{"--decimals-gb",         "RULES", "the same of giga units"}, setRules},
    {{"--decimals-tb",         "RULES", "the same of tera units"}, setRules},
    {{"--decimals-pb",         "RULES", "the same of peta units"}, setRules},
    {{"--decimals-amperage",   "RULES", "fraction digits: 10:2,100:1 is 2 below 10, 1 below 100"}, setRules},
    {{"--decimals-power",      "RULES", "fraction digits: 10:2,100:1 is 2 below 10, 1 below 100"}, setRules},
    {{"--decimals-voltage",    "RULES", "fraction digits: 10:2,100:1 is 2 below 10, 1 below 100"}, setRules},
    {{"--decimals-frequency",  "RULES", "fraction digits: 10:2,100:1 is 2 below 10, 1 below 100"}, setRules},
};
// clang-format on

Dictionary decimalsRule(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) throw InputError(inQuotes(text) + " is not BOUND:DECIMALS, such as 10:2");
  return {{"value", numberIn(text.substr(0, colon))}, {"decimals", integerIn(text.substr(colon + 1), kLeast, kMost)}};
}

}  // namespace

std::span<const OptionFlag> optionFlags() { return kFlags; }

Array decimalsRules(std::string_view text) {
  Array rules;
  for (;;) {
    const std::size_t comma = text.find(',');
    rules.push_back(decimalsRule(text.substr(0, comma)));
    if (comma == std::string_view::npos) return rules;
    text.remove_prefix(comma + 1);
  }
}

}  // namespace kzm::cli
