#include "catalogue/arguments.h"

#include <limits>

#include "catalogue/errors.h"

namespace kzm::catalogue {
namespace {

[[noreturn]] void refuse(std::string_view wanted, const Json& json) {
  throw InputError("expected " + std::string(wanted) + ", not " + (isNumber(json) ? "number" : json.type_name()));
}

}  // namespace

double Argument<double>::read(const Json& json) {
  if (isNumber(json)) return numberFrom(json);
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

}  // namespace kzm::catalogue
