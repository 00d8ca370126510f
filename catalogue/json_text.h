// The library's values as JSON texts.
//
// One line of JSON each. Doubles are the shortest text that reads back to the same double, always with a point or an
// exponent, and "NaN", "Infinity" and "-Infinity" as strings. Bytes that are no UTF-8 become U+FFFD.
#ifndef KZM_CATALOGUE_JSON_TEXT_H
#define KZM_CATALOGUE_JSON_TEXT_H

#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dictionary.h>

#include "catalogue/json.h"

namespace kzm::catalogue {

// Each appends to the text, so that a result needs no intermediate string.
void appendJson(std::string& text, const Json& json);
void appendJson(std::string& text, const double& number);
void appendJson(std::string& text, const std::string_view& string);
void appendJson(std::string& text, const Value& value);
void appendJson(std::string& text, const Dictionary& dictionary);
void appendJson(std::string& text, const AttributedString& attributed);

template <class T>
[[nodiscard]] std::string jsonText(const T& value) {
  std::string text;
  appendJson(text, value);
  return text;
}

/// Adds `[a, b]`, `{a, b}` and the like; `append` adds one element.
template <class Range, class Append>
void appendList(std::string& text, char open, const Range& range, char close, const Append& append,
                const char* between = ", ") {
  const char* separator = "";
  text += open;
  for (const auto& element : range) {
    text += separator;
    append(element);
    separator = between;
  }
  text += close;
}

}  // namespace kzm::catalogue

#endif
