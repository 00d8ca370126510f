#include "tools/strings/allowed.h"

#include <algorithm>
#include <iterator>

namespace kzm::strings {
namespace {

// Symbols: what any language may write as English does.
constexpr std::string_view kSymbols[] = {
    "P",    "T",   "G",   "M",    "K",                                          // byte prefixes, gigahertz, kelvin
    "PB",   "TB",  "GB",  "MB",   "KB",   "GB/s", "MB/s", "KB/s",               // bytes
    "Gb",   "Mb",  "Kb",  "Gb/s", "Mb/s", "Kb/s",                               // bits
    "°",    "V",   "mV",  "A",    "mA",   "W",    "mW",   "GHz",  "mAh", "x",   // sensors
    "km/h", "m/s", "mph", "hPa",  "mb",   "\"",   "km",   "mm",   "cm",  "%%",  // weather
    "min",                                                                      // load
};

// International spellings that English keys do not have.
constexpr std::string_view kOtherSymbols[] = {
    "Gbit", "Mbit", "Kbit", "Gbit/s", "Mbit/s", "Kbit/s", "lx", "rpm", "mbar", "kn", "mi", "d",
};

// Words that a language shares with English, or borrows from it.
struct Shared {
  std::string_view unit;
  std::string_view languages;  // separated by spaces
};
constexpr Shared kShared[] = {
    {"Lux", "de"},
    {"West", "nl"},
    {"rpm", "ca es fil gl id ja ko ms my pt si ur zu"},
    {"Network", "fil"},
    {"Volumes", "af fr gl nl pt"},
    {"Temperatures", "ca"},
    {"Battery", "af"},
    {"sent", "is"},
    {"processor", "da fil nl sv"},
    {"swap", "da fil id ms ro"},
    {"Full", "is nb"},
    {"Charge", "fr"},
    {"Pause", "da de fr nb nn"},
};

// Scripts that a language writes within one word.
struct Mixed {
  std::string_view language;
  std::string_view scripts;  // ISO 15924 codes, separated by spaces
};
constexpr Mixed kMixed[] = {
    {"ja", "Hani Hira Kana"},
    {"ko", "Hang Hani"},
};

// A panel has room for these beside the longest number; the widest texts today are Persian, Assamese and Zulu.
struct Limit {
  std::string_view unit;
  std::size_t cells;
};
// clang-format off
constexpr Limit kLimits[] = {
    {"P", 4}, {"T", 2}, {"G", 2}, {"M", 2}, {"K", 5},
    {"PB", 8}, {"TB", 8}, {"GB", 8}, {"MB", 8}, {"KB", 8}, {"GB/s", 14}, {"MB/s", 14}, {"KB/s", 14},
    {"Gb", 8}, {"Mb", 8}, {"Kb", 8}, {"Gb/s", 14}, {"Mb/s", 14}, {"Kb/s", 14},
    {"°", 1}, {"Off", 12}, {"rpm", 12}, {"V", 5}, {"mV", 9}, {"A", 5}, {"mA", 9}, {"W", 5}, {"mW", 9}, {"GHz", 9},
    {"Lx", 6}, {"Lux", 6}, {"mAh", 14}, {"x", 2},
    {"knots", 10}, {"mph", 12}, {"km/h", 12}, {"m/s", 12},
    {"North", 13}, {"East", 13}, {"South", 13}, {"West", 13},
    {"North East", 23}, {"South East", 23}, {"South West", 23}, {"North West", 23},
    {"hPa", 10}, {"mb", 10}, {"\"", 6}, {"miles", 8}, {"km", 10}, {"mm", 10}, {"cm", 10}, {"Days", 6}, {"%%", 2},
};
// clang-format on

// Words are at the head of columns, or at the left of a row.
struct WordLimit {
  std::string_view family;
  std::size_t cells;
};
constexpr WordLimit kWordLimits[] = {{"Topics", 24}, {"Columns", 14}, {"Rows", 18},
                                     {"Load", 8},    {"Battery", 26}, {"Keys", 18}};

bool hasWord(std::string_view list, std::string_view word) {
  for (std::size_t at = list.find(word); at != std::string_view::npos; at = list.find(word, at + 1)) {
    const std::size_t end = at + word.size();
    if ((at == 0 || list[at - 1] == ' ') && (end == list.size() || list[end] == ' ')) return true;
  }
  return false;
}

}  // namespace

bool isSymbol(std::string_view text) {
  return std::ranges::find(kSymbols, text) != std::end(kSymbols) ||
         std::ranges::find(kOtherSymbols, text) != std::end(kOtherSymbols);
}

bool mayEqualEnglish(std::string_view language, std::string_view unit) {
  if (std::ranges::find(kSymbols, unit) != std::end(kSymbols)) return true;
  return std::ranges::any_of(kShared,
                             [&](const Shared& row) { return row.unit == unit && hasWord(row.languages, language); });
}

bool mayMixScripts(std::string_view language, std::string_view first, std::string_view second) {
  return std::ranges::any_of(kMixed, [&](const Mixed& row) {
    return row.language == language && hasWord(row.scripts, first) && hasWord(row.scripts, second);
  });
}

std::optional<std::size_t> widthLimit(const Key& key) {
  const auto* family = std::ranges::find(kWordLimits, key.family, &WordLimit::family);
  if (family != std::end(kWordLimits)) return family->cells;
  const auto* found = std::ranges::find(kLimits, unitOf(key.pattern), &Limit::unit);
  if (found == std::end(kLimits)) return std::nullopt;
  return found->cells;
}

}  // namespace kzm::strings
