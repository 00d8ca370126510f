#include "bench/options.h"

#include "catalogue/json.h"

namespace kzm::bench {
namespace {

Options made(const char* json) { return {catalogue::optionsFromJson(catalogue::parseJson(json)), json}; }

}  // namespace

const Options& none() {
  static const Options options = made("{}");
  return options;
}

const Options& typicalRate() {
  static const Options options = made(
      R"({"bandwidthformat": 2, "space": true, "unitsize": 3,
          "decimals-mb": [{"value": 10.0, "decimals": 2}, {"value": 100.0, "decimals": 1}],
          "decimals-kb": [{"value": 10.0, "decimals": 2}, {"value": 100.0, "decimals": 1}]})");
  return options;
}

const Options& typicalSize() {
  static const Options options = made(R"({"space": true, "decimals-gb": [{"value": 100.0, "decimals": 1}]})");
  return options;
}

const Options& withUnit() {
  static const Options options = made(R"({"units": true, "space": true})");
  return options;
}

const Options& oneDigit() {
  static const Options options = made(R"({"decimals": 1})");
  return options;
}

const Options& styledRate() {
  static const Options options = made(
      R"({"bandwidthformat": 2, "space": true, "unitsize": 3,
          "decimals-mb": [{"value": 10.0, "decimals": 2}, {"value": 100.0, "decimals": 1}],
          "decimals-kb": [{"value": 10.0, "decimals": 2}, {"value": 100.0, "decimals": 1}],
          "attributes-main": "bold", "attributes-units": "gray"})");
  return options;
}

const Options& styledSize() {
  static const Options options = made(
      R"({"space": true, "decimals-gb": [{"value": 100.0, "decimals": 1}],
          "attributes-main": "bold", "attributes-units": "gray"})");
  return options;
}

const Options& styledDigit() {
  static const Options options = made(R"({"decimals": 1, "attributes-main": "bold", "attributes-units": "gray"})");
  return options;
}

}  // namespace kzm::bench
