// Between the text of the settings file and the settings.
#ifndef KZM_SETTINGS_JSON_H
#define KZM_SETTINGS_JSON_H

#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/dictionary.h>

namespace kzm::settings {

/// The file's object, so whole that writing it back loses nothing.
using Json = nlohmann::json;

/// Objects and arrays nest at most so deep, the file's own object counted.
inline constexpr std::size_t kMostLevels = 64;

/// Either the object that the text holds, or why it holds none.
struct Parsed {
  Json object;
  std::string fault;  // empty when all is well; for example "line 3 is not JSON"
};
[[nodiscard]] Parsed parse(std::string_view text);

/// The settings in the file's object. A null member is no setting.
[[nodiscard]] Dictionary settingsIn(const Json& object);

/// The value as a member of the file's object, or nothing for what JSON cannot hold or the file must not: opaque
/// objects, numbers that are not finite, text that is not UTF-8, more than kMostLevels levels.
[[nodiscard]] std::optional<Json> memberFor(const Value& value);

/// Whether the text can be a key or a string of the file.
[[nodiscard]] bool isUtf8(std::string_view text);

/// The text of the file. Sorted by key and one line for each member, so that it can be read and compared.
[[nodiscard]] std::string textOf(const Json& object);

}  // namespace kzm::settings

#endif
