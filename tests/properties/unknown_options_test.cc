// Calls read the options that they are said to read, and no other.
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <string_view>

#include <KZMUtilities/key.h>

#include "catalogue/callables.h"
#include "catalogue/json_text.h"
#include "tests/support/any_json.h"
#include "tests/support/draws.h"

namespace kzm::tests {
namespace {

using catalogue::Callable;
using catalogue::Json;

// The options that a call reads, between commas.
struct Row {
  std::string_view call;
  std::string_view options;
  std::string_view more = {};
};

constexpr std::string_view kStyles = ",attributes-main,attributes-units,";
constexpr std::string_view kHidingAndStyles = ",hide-bytes,attributes-main,attributes-units,";
constexpr std::string_view kPercentage = ",decimals,space,";
constexpr std::string_view kBandwidth =
    ",bandwidthformat,reverse-type,unitsize,short,space,early-upgrade,decimals-kb,decimals-mb,decimals-gb,";
constexpr std::string_view kActivity = ",short,space,early-upgrade,decimals-kb,decimals-mb,decimals-gb,";
constexpr std::string_view kSize = ",short,space,decimals-kb,decimals-mb,decimals-gb,decimals-tb,decimals-pb,";
constexpr std::string_view kSensor =
    ",space,reverse-type,off,short,decimals-amperage,decimals-power,decimals-voltage,decimals-frequency,";

// clang-format off
constexpr Row kRows[] = {
    {"KZMUtilitiesFormatNumber",                     ",decimals,"},
    {"KZMUtilitiesFormatPercentage",                 kPercentage},
    {"KZMUtilitiesFormatPercentageWithAttributes",   kPercentage, kStyles},
    {"KZMUtilitiesBandwidthData",                    kBandwidth},
    {"KZMUtilitiesFormatBandwidth",                  kBandwidth},
    {"KZMUtilitiesFormatBandwidthWithAttributes",    kBandwidth,  kStyles},
    {"KZMUtilitiesDiskActivityData",                 kActivity},
    {"KZMUtilitiesFormatDiskActivity",               kActivity},
    {"KZMUtilitiesFormatDiskActivityWithAttributes", kActivity,   kHidingAndStyles},
    {"KZMUtilitiesSpaceData",                        kSize},
    {"KZMUtilitiesFormatSpace",                      kSize},
    {"KZMUtilitiesFormatSpaceWithAttributes",        kSize,       kStyles},
    {"KZMUtilitiesMemoryData",                       kSize},
    {"KZMUtilitiesFormatMemory",                     kSize},
    {"KZMUtilitiesFormatMemoryWithAttributes",       kSize,       kStyles},
    {"KZMUtilitiesFormatWeatherTemperature",         ",units,decimals,reverse,"},
    {"KZMUtilitiesFormatWeatherWindSpeed",           ",units,space,"},
    {"KZMUtilitiesFormatWeatherPressure",            ",units,space,decimals,"},
    {"KZMUtilitiesFormatWeatherAltitude",            ",decimals,"},
    {"KZMUtilitiesFormatWeatherAzimuth",             ",decimals,"},
    {"KZMUtilitiesSensorData",                       kSensor},
    {"KZMUtilitiesFormatSensor",                     kSensor,     ",units,strip,"},
};
// clang-format on

bool reads(const Row& row, const std::string& option) {
  const std::string wanted = "," + option + ",";
  return row.options.find(wanted) != std::string_view::npos || row.more.find(wanted) != std::string_view::npos;
}

// A name that the row lacks: one that other calls read, or one that none does.
std::string anyUnknown(Input& input, const Row& row) {
  const std::string name(input.any(internal::kSlottedNames));
  return reads(row, name) ? name + "s" : name;
}

Json knownAlone(const Row& row, const Json& options) {
  Json known = Json::object();
  for (const auto& [name, value] : options.items()) {
    if (reads(row, name)) known[name] = value;
  }
  return known;
}

TEST(UnknownOptions, AreThoseOfNoRow) {
  for (const Callable& callable : catalogue::callables()) {
    const bool takesOptions = std::ranges::find(callable.kinds, "dictionary") != callable.kinds.end();
    EXPECT_EQ(std::ranges::find(kRows, callable.name, &Row::call) != std::end(kRows), takesOptions) << callable.name;
  }
}

TEST(UnknownOptions, ChangeNothing) {
  forDraws(100'000, 10'000, [](Input& input) {
    const Row& row = input.any(kRows);
    const auto callables = catalogue::callables();
    const Callable& callable = *std::ranges::find(callables, row.call, &Callable::name);
    Json arguments = Json::array();
    if (callable.kinds.size() > 2) arguments.push_back(1 + input.below(10));  // the kind of sensor
    arguments.push_back(knownAlone(row, anyOptions(input)));
    arguments.push_back(catalogue::parseJson(catalogue::jsonText(anyDouble(input))));
    Json& options = arguments[arguments.size() - 2];
    const std::string before = callable.call(arguments).json;
    for (std::size_t count = 1 + input.below(4); count > 0; --count) {
      options[anyUnknown(input, row)] = anyJson(input);
      EXPECT_EQ(callable.call(arguments).json, before) << row.call << ' ' << options;
    }
  });
}

}  // namespace
}  // namespace kzm::tests
