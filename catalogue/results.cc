#include "catalogue/results.h"

namespace kzm::catalogue {
namespace {

template <class T>
void appendOrNull(std::string& json, const std::optional<T>& result) {
  if (result.has_value()) {
    appendJson(json, *result);
  } else {
    json += "null";
  }
}

}  // namespace

std::optional<std::string_view> bareText(const std::string& text) { return text; }
std::optional<std::string_view> bareText(const std::optional<std::string>& text) { return text; }
std::optional<std::string_view> bareText(const MeasurementUnit& unit) { return measurementUnitName(unit); }
std::optional<std::string_view> bareText(const std::shared_ptr<const Locale>& locale) { return locale->identifier(); }

void appendJson(std::string& json, const DateComponents& components) {
  appendList(json, '{', components.fields, '}', [&json](const DateComponents::Field& field) {
    appendJson(json, field.name);
    json += ": ";
    appendJson(json, field.value);
  });
}

void appendJson(std::string& json, const bool& boolean) { json += boolean ? "true" : "false"; }
void appendJson(std::string& json, const TimePoint& t) { appendOrNull(json, t); }
void appendJson(std::string& json, const Array& array) { appendJson(json, Value(array)); }
void appendJson(std::string& json, const std::optional<Dictionary>& dictionary) { appendOrNull(json, dictionary); }
void appendJson(std::string& json, const std::optional<DateComponents>& components) { appendOrNull(json, components); }

void appendJson(std::string& json, const std::shared_ptr<const NumberFormatter>& formatter) {
  appendJson(json, Dictionary{{"minimumFractionDigits", formatter->minimumFractionDigits()},
                              {"maximumFractionDigits", formatter->maximumFractionDigits()}});
}

}  // namespace kzm::catalogue
