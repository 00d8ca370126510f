// The rows of all families and the rows of the English table are the same: this program brings its own localization
// call, which writes down every lookup.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/KZMUtilities.h>

#include "core/rows.h"
#include "tests/support/lookup.h"
#include "tools/strings/table.h"
#include "weather/weather_text.h"

namespace {

using kzm::tests::Lookup;

std::vector<Lookup> lookups;

}  // namespace

std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view table,
                                                const kzm::ResourceBundle* bundle, const char* comment) {
  lookups.emplace_back(key, table, bundle, comment);
  return std::string(key);
}

namespace kzm {
namespace {

strings::Table englishTable() { return strings::readTable(KZM_SOURCES "/resources/en.lproj/KZMUtilities.strings"); }

// A unit that has one form only is looked up twice in it.
void lookUpWeather() {
  for (std::size_t unit = 0; unit < core::countEnumerators<weather::Unit>(); ++unit) {
    for (const core::Spacing spacing : {core::Spacing::spaced, core::Spacing::tight}) {
      static_cast<void>(weather::localizedText(static_cast<weather::Unit>(unit), spacing));
    }
  }
  lookups.erase(std::unique(lookups.begin(), lookups.end()), lookups.end());
}

// What all families look up, in the order of their tables.
const std::vector<Lookup>& allLookups() {
  if (!lookups.empty()) return lookups;
  static_cast<void>(KZMUtilitiesBandwidthData({}, 0.0));
  static_cast<void>(KZMUtilitiesDiskActivityData({}, 0.0));
  static_cast<void>(KZMUtilitiesSpaceData({}, 0.0));
  static_cast<void>(KZMUtilitiesMemoryData({}, 0.0));
  static_cast<void>(KZMUtilitiesSensorData(SensorType::light, {}, 0.0));
  lookUpWeather();
  return lookups;
}

TEST(StringRows, TheFamiliesAndTheEnglishTableHaveTheSameOnesInTheSameOrder) {
  std::vector<std::string> families;
  std::vector<std::string> table;
  for (const Lookup& lookup : allLookups()) families.push_back(lookup.key);
  for (const strings::Entry& entry : englishTable().entries) table.push_back(entry.key);
  EXPECT_EQ(families, table);
}

// "Units.Network." and so on.
std::string prefixOf(std::string_view key) { return std::string(key.substr(0, key.find('.', key.find('.') + 1) + 1)); }

TEST(StringRows, EveryFamilyOfTheSourcesIsInTheEnglishTable) {
  std::set<std::string> sources;
  const std::regex rows("unitRows\\(\"(.*?)\"");
  for (const char* folder : {"bytes", "clock", "core", "platform", "sensors", "units", "weather"}) {
    for (const auto& file : std::filesystem::directory_iterator(std::string(KZM_SOURCES "/") + folder)) {
      std::ifstream stream(file.path());
      const std::string source{std::istreambuf_iterator<char>(stream), {}};
      for (std::sregex_iterator found(source.begin(), source.end(), rows), end; found != end; ++found) {
        sources.insert((*found)[1]);
      }
    }
  }
  std::set<std::string> table;
  for (const strings::Entry& entry : englishTable().entries) table.insert(prefixOf(entry.key));
  EXPECT_EQ(sources, table);
}

// The words of the table's hints for those of a family's own.
std::string inFullWords(std::string_view hint) {
  if (hint == "amps") return "amperes";
  if (hint == "GHz") return "gigahertz";
  std::string words(hint);
  if (const std::size_t rate = words.find("/sec"); rate != std::string::npos) words.replace(rate, 4, " per second");
  return words;
}

// The hints of disk activity are those of other units on purpose, and bandwidth has the hints of rates in all its rows.
TEST(StringRows, AHintSaysWhatTheEnglishTableSays) {
  const strings::Table table = englishTable();
  std::size_t hints = 0;
  for (const Lookup& lookup : allLookups()) {
    const strings::Entry* entry = table.find(lookup.key);
    if (!lookup.comment.has_value() || entry == nullptr) continue;
    const bool agrees = entry->hint.find(inFullWords(*lookup.comment)) != std::string::npos;
    EXPECT_EQ(agrees, prefixOf(lookup.key) != "Units.Activity.") << lookup.key << ": " << *lookup.comment;
    ++hints;
  }
  EXPECT_EQ(hints, 30U + 5 + 5 + 5 + 10 + 1);
}

}  // namespace
}  // namespace kzm
