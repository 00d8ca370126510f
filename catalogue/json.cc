#include "catalogue/json.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>

#include "catalogue/json_attributes.h"
#include "catalogue/json_text.h"

namespace kzm::catalogue {
namespace {

struct NamedDouble {
  std::string_view name;
  double number;
};
constexpr NamedDouble kNamedDoubles[] = {
    {"NaN", std::numeric_limits<double>::quiet_NaN()},
    {"Infinity", std::numeric_limits<double>::infinity()},
    {"-Infinity", -std::numeric_limits<double>::infinity()},
};

}  // namespace

Value valueFromJson(const Json& json) {
  switch (json.type()) {
    case Json::value_t::boolean:
      return json.get<bool>();
    case Json::value_t::number_integer:
      return json.get<std::int64_t>();
    case Json::value_t::number_unsigned:
      return json.get<std::uint64_t>();
    case Json::value_t::number_float:
    case Json::value_t::binary:
      return numberFrom(json);
    case Json::value_t::string:
      return json.get<std::string>();
    case Json::value_t::array: {
      Array elements;
      for (const Json& element : json) elements.push_back(valueFromJson(element));
      return elements;
    }
    case Json::value_t::object: {
      Dictionary members;
      for (const auto& [key, member] : json.items()) members.set(key, valueFromJson(member));
      return members;
    }
    default:
      return nullptr;
  }
}

Value attributesFromJson(const Json& json) {
  return json.is_null() ? Value() : Value(std::make_shared<const JsonAttributes>(jsonText(json)));
}

Dictionary optionsFromJson(const Json& json) {
  Dictionary options;
  for (const auto& [key, member] : json.items()) {
    const bool isAttributes = key == "attributes-main" || key == "attributes-units";
    options.set(key, isAttributes ? attributesFromJson(member) : valueFromJson(member));
  }
  return options;
}

std::optional<double> namedDouble(std::string_view text) {
  const auto* named = std::ranges::find(kNamedDoubles, text, &NamedDouble::name);
  return named != std::end(kNamedDoubles) ? std::optional(named->number) : std::nullopt;
}

std::string_view nameOf(double number) {
  if (std::isnan(number)) return kNamedDoubles[0].name;
  return kNamedDoubles[number > 0 ? 1 : 2].name;
}

}  // namespace kzm::catalogue
