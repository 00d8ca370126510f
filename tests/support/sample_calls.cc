#include "tests/support/sample_calls.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>

namespace kzm::tests {
namespace {

using catalogue::Callable;
using catalogue::Json;
using catalogue::Parameter;

struct Sample {
  std::string_view what;
  const char* json;
};

// What each parameter gets, by its call, which has no other then, or by its name or, after those, by its kind.
// clang-format off
constexpr Sample kSamples[] = {
    {"dateFromComponents:",         "28"},  // year, month and day: the same all day long
    {"timeIntervalFromComponents:", "28"},
    {"pattern",          R"("(\\d+) and [a-z]+ more than a string has room for|\\d+")"},
    {"key",              R"("Units.Weather.North")"},
    {"table",            R"("KZMUtilities")"},
    {"target",           R"("%@")"},
    {"type",             "1"},
    {"minimum",          "1"},
    {"maximum",          "3"},
    {"day",              "3"},
    {"dictionary",       R"({"bandwidthformat": 2, "space": true, "units": true, "decimals": 1,
                             "decimals-mb": [{"value": 10.0, "decimals": 2}, {"value": 1000.0, "decimals": 1}],
                             "attributes-main": "bold", "attributes-units": "gray"})"},
    {"double",           "123456789.125"},
    {"integer",          "3"},
    {"string",           R"("12 and more than a string has room for, in %@")"},
    {"string|null",      R"("north")"},
    {"locale",           R"("ar_EG")"},
    {"time|null",        "1700000000.5"},
    {"timezone",         R"("America/New_York")"},
    {"units",            "1048575"},
    {"attributes",       R"({"weight": "bold"})"},
    {"attributedstring", R"({"runs": [{"text": "12 %@ and more than a string has room for", "attributes": "bold"},
                                      {"text": " and so on", "attributes": null}]})"},
};
// clang-format on

Json sampleOf(const Callable& callable, const Parameter& parameter) {
  for (const std::string_view what : {callable.name, parameter.name, parameter.kind}) {
    const auto* sample = std::ranges::find(kSamples, what, &Sample::what);
    if (sample != std::end(kSamples)) return Json::parse(sample->json);
  }
  throw std::invalid_argument("no sample for a parameter of kind " + std::string(parameter.kind));
}

}  // namespace

Json sampleArguments(const Callable& callable) {
  Json arguments = Json::array();
  for (const Parameter& parameter : catalogue::parametersOf(callable)) {
    arguments.push_back(sampleOf(callable, parameter));
  }
  return arguments;
}

bool readsTheClock(const Callable& callable) {
  constexpr std::string_view kOfNow[] = {"dateFromComponents:", "timeIntervalFromComponents:", "utcStartForToday"};
  return std::ranges::find(kOfNow, callable.name) != std::end(kOfNow);
}

}  // namespace kzm::tests
