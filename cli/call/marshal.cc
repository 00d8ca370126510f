#include "cli/call/marshal.h"

#include <limits>

#include "cli/numbers.h"

namespace kzm::cli {
namespace {

[[noreturn]] void refuse(std::string_view wanted, const Json& json) {
  throw InputError("expected " + std::string(wanted) + ", not " + std::string(json.type_name()));
}

}  // namespace

double Argument<double>::read(const Json& json) {
  if (json.is_number()) return json.get<double>();
  if (json.is_string()) {
    if (const std::optional<double> named = namedDouble(json.get_ref<const std::string&>())) return *named;
  }
  refuse("a number, \"NaN\", \"Infinity\" or \"-Infinity\"", json);
}

std::int64_t Argument<std::int64_t>::read(const Json& json) {
  if (!json.is_number_integer()) refuse("an integer", json);
  if (json.is_number_unsigned() && json.get<std::uint64_t>() > std::numeric_limits<std::int64_t>::max()) {
    throw InputError("the integer is out of range");
  }
  return json.get<std::int64_t>();
}

std::string Argument<std::string_view>::read(const Json& json) {
  if (!json.is_string()) refuse("a string", json);
  return json.get<std::string>();
}

Dictionary Argument<Dictionary>::read(const Json& json) {
  if (json.is_null()) return {};
  if (!json.is_object()) refuse("an object or null", json);
  return optionsFromJson(json);
}

std::shared_ptr<const Locale> Argument<std::shared_ptr<const Locale>>::read(const Json& json) {
  if (!json.is_string()) refuse("a locale identifier", json);
  return std::make_shared<const Locale>(json.get<std::string>());
}

Result resultOf(double number) { return {jsonText(number), std::nullopt}; }
Result resultOf(bool boolean) { return {boolean ? "true" : "false", std::nullopt}; }
Result resultOf(std::int64_t integer) { return {std::to_string(integer), std::nullopt}; }
Result resultOf(const std::string& text) { return {jsonText(std::string_view(text)), text}; }
Result resultOf(const Dictionary& dictionary) { return {jsonText(dictionary), std::nullopt}; }
Result resultOf(const std::optional<Dictionary>& dictionary) {
  return dictionary.has_value() ? resultOf(*dictionary) : Result{"null", std::nullopt};
}
Result resultOf(MeasurementUnit unit) { return resultOf(std::string(measurementUnitName(unit))); }
Result resultOf(const AttributedString& text) { return {jsonText(text), std::nullopt}; }
Result resultOf(const std::shared_ptr<const Locale>& locale) { return resultOf(locale->identifier()); }

Result resultOf(const std::shared_ptr<const NumberFormatter>& formatter) {
  return resultOf(Dictionary{
      {"minimumFractionDigits", formatter->minimumFractionDigits()},
      {"maximumFractionDigits", formatter->maximumFractionDigits()}
  });
}

}  // namespace kzm::cli
