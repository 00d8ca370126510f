#include "catalogue/json_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "catalogue/json_attributes.h"

namespace kzm::catalogue {
namespace {

// Most texts are ASCII that needs no escape.
bool isPlain(std::string_view string) {
  // Not the one of std::ranges, which looks at one character a step instead of four.
  return std::all_of(string.begin(), string.end(),
                     [](char c) { return c >= ' ' && c < '\x7f' && c != '"' && c != '\\'; });
}

void appendInteger(std::string& text, std::int64_t integer) {
  char room[24];
  text.append(room, std::to_chars(room, room + sizeof room, integer).ptr);
}

void appendRun(std::string& text, const AttributedString::Run& run) {
  text += "{\"text\": ";
  appendJson(text, run.text);
  text += ", \"attributes\": ";
  appendJson(text, run.attributes);
  text += '}';
}

}  // namespace

void appendJson(std::string& text, const Json& json) {
  if (const std::optional<std::string> kept = keptText(json)) {
    text += *kept;
  } else if (json.is_number_float()) {
    appendJson(text, json.get<double>());
  } else if (json.is_array()) {
    appendList(
        text, '[', json, ']', [&text](const Json& element) { appendJson(text, element); }, ",");
  } else if (json.is_object()) {
    const auto appendMember = [&text](const auto& member) {
      appendJson(text, std::string_view(member.key()));
      text += ':';
      appendJson(text, member.value());
    };
    appendList(text, '{', json.items(), '}', appendMember, ",");
  } else {
    text += json.dump(-1, ' ', false, Json::error_handler_t::replace);
  }
}

void appendJson(std::string& text, const double& number) {
  if (!std::isfinite(number)) {
    text.append("\"").append(nameOf(number)).append("\"");
    return;
  }
  constexpr std::size_t kMostDigits = 18;  // and a sign: no double has more digits of its own
  char room[32];
  std::string_view digits(room, std::to_chars(room, room + sizeof room, number).ptr);
  const bool isWhole = digits.find_first_of(".e") == std::string_view::npos;
  if (isWhole && digits.size() > kMostDigits)
    digits = {room, std::to_chars(room, room + sizeof room, number, std::chars_format::scientific).ptr};
  text += digits;
  if (digits.find_first_of(".e") == std::string_view::npos) text += ".0";
}

void appendJson(std::string& text, const std::string_view& string) {
  if (!isPlain(string)) return appendJson(text, Json(string));
  text += '"';
  text += string;
  text += '"';
}

void appendJson(std::string& text, const Value& value) {
  if (const bool* boolean = value.boolean()) {
    text += *boolean ? "true" : "false";
  } else if (const std::int64_t* integer = value.integer()) {
    appendInteger(text, *integer);
  } else if (const double* real = value.real()) {
    appendJson(text, *real);
  } else if (const std::string* string = value.string()) {
    appendJson(text, std::string_view(*string));
  } else if (const Dictionary* dictionary = value.dictionary()) {
    appendJson(text, *dictionary);
  } else if (const Array* array = value.array()) {
    appendList(text, '[', *array, ']', [&text](const Value& element) { appendJson(text, element); });
  } else {
    const auto* attributes = dynamic_cast<const JsonAttributes*>(value.object());
    text += attributes != nullptr ? attributes->json() : "null";
  }
}

void appendJson(std::string& text, const Dictionary& dictionary) {
  appendList(text, '{', dictionary, '}', [&text](const Dictionary::Entry& entry) {
    appendJson(text, std::string_view(entry.key));
    text += ": ";
    appendJson(text, entry.value);
  });
}

void appendJson(std::string& text, const AttributedString& attributed) {
  text += "{\"text\": ";
  appendJson(text, std::string_view(attributed.text()));
  text += ", \"runs\": ";
  appendList(text, '[', attributed.runs(), ']', [&text](const AttributedString::Run& run) { appendRun(text, run); });
  text += '}';
}

}  // namespace kzm::catalogue
