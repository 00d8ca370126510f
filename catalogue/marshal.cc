#include "catalogue/marshal.h"

#include <limits>

namespace kzm::catalogue {
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

std::optional<std::string> Argument<std::optional<std::string>>::read(const Json& json) {
  if (json.is_null()) return std::nullopt;
  return Argument<std::string_view>::read(json);
}

TimePoint Argument<TimePoint>::read(const Json& json) {
  if (json.is_null()) return std::nullopt;
  return Argument<double>::read(json);
}

TimeZone Argument<TimeZone>::read(const Json& json) {
  const std::string identifier = Argument<std::string_view>::read(json);
  const std::optional<TimeZone> zone = TimeZone::named(identifier);
  if (!zone.has_value()) throw InputError("no time zone is named \"" + identifier + "\"");
  return *zone;
}

CalendarUnits Argument<CalendarUnits>::read(const Json& json) {
  return static_cast<CalendarUnits>(Argument<std::int64_t>::read(json));
}

Value Argument<Value>::read(const Json& json) { return attributesFromJson(json); }

AttributedString Argument<AttributedString>::read(const Json& json) {
  if (!json.is_object() || !json.contains("runs") || !json["runs"].is_array()) {
    refuse("an object with \"text\" and \"runs\"", json);
  }
  AttributedString text;
  for (const Json& run : json["runs"]) {
    if (!run.is_object() || !run.contains("text")) refuse("a run with \"text\" and \"attributes\"", run);
    const Value attributes = run.contains("attributes") ? attributesFromJson(run["attributes"]) : Value();
    text.append(AttributedString(Argument<std::string_view>::read(run["text"]), attributes));
  }
  if (json.contains("text") && json["text"] != Json(text.text())) throw InputError("\"text\" is not that of the runs");
  return text;
}

Result resultOf(double number) { return {jsonText(number), std::nullopt}; }
Result resultOf(bool boolean) { return {boolean ? "true" : "false", std::nullopt}; }
Result resultOf(std::int64_t integer) { return {std::to_string(integer), std::nullopt}; }
Result resultOf(const std::string& text) { return {jsonText(std::string_view(text)), text}; }
Result resultOf(const std::optional<std::string>& text) {
  return text.has_value() ? resultOf(*text) : Result{"null", std::nullopt};
}
Result resultOf(const Array& array) { return {jsonText(Value(array)), std::nullopt}; }
Result resultOf(const TimePoint& t) { return {t.has_value() ? jsonText(*t) : "null", std::nullopt}; }

Result resultOf(const std::optional<DateComponents>& components) {
  if (!components.has_value()) return {"null", std::nullopt};
  Dictionary fields;
  for (const DateComponents::Field& field : components->fields) fields.set(field.name, field.value);
  return resultOf(fields);
}

Result resultOf(const Dictionary& dictionary) { return {jsonText(dictionary), std::nullopt}; }
Result resultOf(const std::optional<Dictionary>& dictionary) {
  return dictionary.has_value() ? resultOf(*dictionary) : Result{"null", std::nullopt};
}
Result resultOf(MeasurementUnit unit) { return resultOf(std::string(measurementUnitName(unit))); }
Result resultOf(const AttributedString& text) { return {jsonText(text), std::nullopt}; }
Result resultOf(const std::shared_ptr<const Locale>& locale) { return resultOf(locale->identifier()); }

Result resultOf(const std::shared_ptr<const NumberFormatter>& formatter) {
  return resultOf(Dictionary{{"minimumFractionDigits", formatter->minimumFractionDigits()},
                             {"maximumFractionDigits", formatter->maximumFractionDigits()}});
}

}  // namespace kzm::catalogue
