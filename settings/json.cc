#include "settings/json.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kzm::settings {
namespace {

// Counted on the text, before anything is built that would have to be taken apart again level by level.
bool nestsTooDeep(std::string_view text) {
  std::size_t levels = 0;
  bool inString = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"') inString = !inString;
    if (inString && c == '\\') ++i;
    if (inString) continue;
    if ((c == '{' || c == '[') && ++levels > kMostLevels) return true;
    if ((c == '}' || c == ']') && levels > 0) --levels;
  }
  return false;
}

std::string lineFault(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset > 0 ? offset - 1 : 0);
  return "line " + std::to_string(1 + std::count(before.begin(), before.end(), '\n')) + " is not JSON";
}

Value valueOf(const Json& json) {
  switch (json.type()) {
    case Json::value_t::boolean:
      return json.get<bool>();
    case Json::value_t::number_integer:
      return json.get<std::int64_t>();
    case Json::value_t::number_unsigned:
      return json.get<std::uint64_t>();
    case Json::value_t::number_float:
      return json.get<double>();
    case Json::value_t::string:
      return json.get_ref<const std::string&>();
    case Json::value_t::array: {
      Array elements;
      for (const Json& element : json) elements.push_back(valueOf(element));
      return elements;
    }
    case Json::value_t::object: {
      Dictionary members;
      for (const auto& [key, member] : json.items()) members.set(key, valueOf(member));
      return members;
    }
    default:
      return nullptr;
  }
}

std::optional<Json> jsonOf(const Value& value, std::size_t level);

std::optional<Json> jsonOf(const Array& elements, std::size_t level) {
  Json json = Json::array();
  for (const Value& element : elements) {
    std::optional<Json> made = jsonOf(element, level + 1);
    if (!made) return std::nullopt;
    json.push_back(*std::move(made));
  }
  return json;
}

std::optional<Json> jsonOf(const Dictionary& members, std::size_t level) {
  Json json = Json::object();
  for (const Dictionary::Entry& member : members) {
    std::optional<Json> made = jsonOf(member.value, level + 1);
    if (!made || !isUtf8(member.key)) return std::nullopt;
    json[member.key] = *std::move(made);
  }
  return json;
}

// The level is that of the array or dictionary that this value may be; the file's own object is level one.
std::optional<Json> jsonOf(const Value& value, std::size_t level) {
  if (value.isNull()) return Json(nullptr);
  if (const bool* truth = value.boolean()) return Json(*truth);
  if (const std::int64_t* integer = value.integer()) return Json(*integer);
  if (const double* real = value.real()) return std::isfinite(*real) ? std::optional(Json(*real)) : std::nullopt;
  if (const std::string* text = value.string()) return isUtf8(*text) ? std::optional(Json(*text)) : std::nullopt;
  if (level > kMostLevels) return std::nullopt;
  if (const Array* elements = value.array()) return jsonOf(*elements, level);
  if (const Dictionary* members = value.dictionary()) return jsonOf(*members, level);
  return std::nullopt;
}

}  // namespace

Parsed parse(std::string_view text) {
  if (nestsTooDeep(text)) return {nullptr, "it nests deeper than " + std::to_string(kMostLevels) + " levels"};
  try {
    Json json = Json::parse(text);
    if (!json.is_object()) return {nullptr, "it is not one JSON object"};
    return {std::move(json), {}};
  } catch (const Json::parse_error& error) {
    return {nullptr, lineFault(text, error.byte)};
  } catch (const Json::exception&) {
    return {nullptr, "it holds a number out of range"};
  }
}

Dictionary settingsIn(const Json& object) {
  Dictionary settings;
  for (const auto& [key, member] : object.items()) {
    if (!member.is_null()) settings.set(key, valueOf(member));
  }
  return settings;
}

std::optional<Json> memberFor(const Value& value) { return jsonOf(value, 2); }

bool isUtf8(std::string_view text) {
  try {
    (void)Json(text).dump();
    return true;
  } catch (const Json::type_error&) {
    return false;
  }
}

std::string textOf(const Json& object) { return object.dump(2) + '\n'; }

}  // namespace kzm::settings
