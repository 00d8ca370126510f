// JSON texts as the library's values.
#ifndef KZM_CATALOGUE_JSON_H
#define KZM_CATALOGUE_JSON_H

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/dictionary.h>

namespace kzm::catalogue {

using Json = nlohmann::json;

/// Reads one JSON text. Malformed or absurdly deep ones are an InputError, and so is a number beyond all doubles. A
/// number that no 64-bit type holds keeps its text: ask isNumber and numberFrom for it.
[[nodiscard]] Json parseJson(std::string_view text);

/// Whether it is a number of any kind, and its nearest double.
[[nodiscard]] bool isNumber(const Json& json);
[[nodiscard]] double numberFrom(const Json& json);

/// The text of a number that keeps it, which is bytes to the parser's type; nothing for all others.
[[nodiscard]] std::optional<std::string> keptText(const Json& json);

/// The JSON as a Value, an object's members with it.
[[nodiscard]] Value valueFromJson(const Json& json);

/// A set of text attributes: any JSON, carried through unread. JSON null is no attributes.
[[nodiscard]] Value attributesFromJson(const Json& json);

/// An options dictionary; its attribute sets are carried through unread.
[[nodiscard]] Dictionary optionsFromJson(const Json& json);

/// The doubles that JSON has no number for: "NaN", "Infinity" and "-Infinity". Nothing for any other text.
[[nodiscard]] std::optional<double> namedDouble(std::string_view text);

/// The name of a double that is not finite.
[[nodiscard]] std::string_view nameOf(double number);

}  // namespace kzm::catalogue

#endif
