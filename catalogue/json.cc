#include "catalogue/json.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>

#include "catalogue/errors.h"

namespace kzm::catalogue {
namespace {

constexpr int kDeepest = 256;

struct NamedDouble {
  std::string_view name;
  double number;
};
constexpr NamedDouble kNamedDoubles[] = {
    {"NaN", std::numeric_limits<double>::quiet_NaN()},
    {"Infinity", std::numeric_limits<double>::infinity()},
    {"-Infinity", -std::numeric_limits<double>::infinity()},
};

// A set of text attributes as it was given.
class JsonAttributes final : public Object {
 public:
  explicit JsonAttributes(Json json) : json_(std::move(json)) {}
  [[nodiscard]] const Json& json() const { return json_; }
  // By their texts: 1 and 1.0 are different attributes, and so are integers that only a double would take for equal.
  [[nodiscard]] bool equals(const Object& other) const override {
    const auto* attributes = dynamic_cast<const JsonAttributes*>(&other);
    return attributes != nullptr && jsonText(attributes->json_) == jsonText(json_);
  }

 private:
  Json json_;
};

template <class Range, class Text>
std::string joined(char open, const Range& range, char close, const Text& text) {
  std::string all(1, open);
  for (const auto& element : range) {
    if (all.size() > 1) all += ", ";
    all += text(element);
  }
  return all + close;
}

}  // namespace

Json parseJson(std::string_view text) {
  const auto refuseDepth = [](int depth, Json::parse_event_t, Json&) {
    if (depth > kDeepest) throw InputError("nested deeper than " + std::to_string(kDeepest) + " levels");
    return true;
  };
  try {
    return Json::parse(text, refuseDepth);
  } catch (const Json::parse_error& error) {
    throw InputError("malformed JSON at byte " + std::to_string(error.byte));
  } catch (const Json::out_of_range&) {
    throw InputError("a number in the JSON is out of range");
  }
}

Value valueFromJson(const Json& json) {
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
  return json.is_null() ? Value() : Value(std::make_shared<const JsonAttributes>(json));
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
  for (const NamedDouble& named : kNamedDoubles) {
    if (named.name == text) return named.number;
  }
  return std::nullopt;
}

std::string jsonText(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

std::string jsonText(double number) {
  if (std::isnan(number)) return "\"NaN\"";
  if (std::isinf(number)) return number < 0 ? "\"-Infinity\"" : "\"Infinity\"";
  char room[32];
  std::string text(room, std::to_chars(room, room + sizeof room, number).ptr);
  return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

std::string jsonText(std::string_view text) { return jsonText(Json(text)); }

std::string jsonText(const Value& value) {
  if (const bool* boolean = value.boolean()) return *boolean ? "true" : "false";
  if (const std::int64_t* integer = value.integer()) return std::to_string(*integer);
  if (const double* real = value.real()) return jsonText(*real);
  if (const std::string* text = value.string()) return jsonText(std::string_view(*text));
  if (const Dictionary* dictionary = value.dictionary()) return jsonText(*dictionary);
  if (const Array* array = value.array()) {
    return joined('[', *array, ']', [](const Value& element) { return jsonText(element); });
  }
  const auto* attributes = dynamic_cast<const JsonAttributes*>(value.object());
  return attributes != nullptr ? jsonText(attributes->json()) : "null";
}

std::string jsonText(const Dictionary& dictionary) {
  return joined('{', dictionary, '}', [](const Dictionary::Entry& entry) {
    return jsonText(std::string_view(entry.key)) + ": " + jsonText(entry.value);
  });
}

std::string jsonText(const AttributedString& text) {
  const auto run = [](const AttributedString::Run& part) {
    return "{\"text\": " + jsonText(std::string_view(part.text)) + ", \"attributes\": " + jsonText(part.attributes) +
           "}";
  };
  return "{\"text\": " + jsonText(std::string_view(text.text())) + ", \"runs\": " + joined('[', text.runs(), ']', run) +
         "}";
}

}  // namespace kzm::catalogue
