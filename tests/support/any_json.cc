#include "tests/support/any_json.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include <KZMUtilities/key.h>

namespace kzm::tests {
namespace {

using catalogue::Json;

constexpr std::size_t kMostLevels = 4;

// The protocol's texts are UTF-8: what is not becomes U+FFFD.
std::string anyText(Input& input) {
  const Json text = std::string(input.textTo('\0'));
  return Json::parse(text.dump(-1, ' ', false, Json::error_handler_t::replace)).get<std::string>();
}

Json anyNumber(Input& input) {
  const double number = anyDouble(input);
  return std::isfinite(number) ? Json(number) : Json(catalogue::nameOf(number));
}

Json anyInteger(Input& input) {
  return input.below(4) == 0 ? Json(input.take<std::int64_t>()) : Json(input.take<std::int8_t>() % 20);
}

Json anyRules(Input& input) {
  Json rules = Json::array();
  for (std::size_t count = input.below(4); count > 0; --count) {
    rules.push_back({{"value", anyNumber(input)}, {"decimals", anyInteger(input)}});
  }
  return rules;
}

Json anyAt(Input& input, std::size_t level);

Json optionsAt(Input& input, std::size_t level) {
  Json options = Json::object();
  for (std::size_t count = input.below(8); count > 0; --count) {
    const std::string name = input.below(8) == 0 ? anyText(input) : std::string(input.any(internal::kSlottedNames));
    const bool isRules = name.starts_with("decimals-") && input.below(4) != 0;
    options[name] = isRules ? anyRules(input) : anyAt(input, level + 1);
  }
  return options;
}

Json anyAt(Input& input, std::size_t level) {
  switch (input.below(level < kMostLevels ? 8 : 6)) {
    case 0:
      return nullptr;
    case 1:
      return input.take<std::uint8_t>() % 2 == 0;
    case 2:
      return input.take<std::int8_t>();
    case 3:
      return anyInteger(input);
    case 4:
      return anyNumber(input);
    case 5:
      return anyText(input);
    case 6: {
      Json elements = Json::array();
      for (std::size_t count = input.below(4); count > 0; --count) elements.push_back(anyAt(input, level + 1));
      return elements;
    }
    default:
      return optionsAt(input, level);
  }
}

// A power of one of the bases of all units, or the next double below or above it.
double nextToAUnit(Input& input) {
  constexpr double kBases[] = {1000.0, 1024.0};
  const double unit = std::pow(input.any(kBases), static_cast<double>(input.below(7)));
  const std::size_t side = input.below(3);
  return side == 0 ? unit : std::nextafter(unit, side == 1 ? 0.0 : std::numeric_limits<double>::infinity());
}

}  // namespace

double anyDouble(Input& input) {
  switch (input.below(4)) {
    case 0:
      return input.take<double>();
    case 1:
      return input.take<std::int16_t>() / 4.0;
    case 2:
      return nextToAUnit(input);
    default:
      return std::ldexp(input.take<std::int32_t>(), static_cast<int>(input.below(80)) - 40);
  }
}

Json anyJson(Input& input) { return anyAt(input, 0); }

Json anyOptions(Input& input) { return optionsAt(input, 0); }

Json anyArgument(Input& input, std::string_view kind) {
  if (input.below(16) == 0) return anyJson(input);
  if (kind == "double") return anyNumber(input);
  if (kind == "dictionary") return anyOptions(input);
  if (kind == "string") return anyText(input);
  if (kind == "integer") return anyInteger(input);
  return anyJson(input);
}

}  // namespace kzm::tests
