// Between the text of the settings file and the settings.
#ifndef KZM_SETTINGS_JSON_H
#define KZM_SETTINGS_JSON_H

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/dictionary.h>

namespace kzm::settings {

/// A member of the file's object: what it means, and its text, so whole that writing it back loses nothing.
struct Member {
  Value value;
  std::string text;
};
using Members = std::map<std::string, Member, std::less<>>;

/// Objects and arrays nest at most so deep, the file's own object counted.
inline constexpr std::size_t kMostLevels = 64;

/// Either the members of the object that the text holds, or why it holds none.
struct Parsed {
  Members members;
  std::string fault;  // empty when all is well; for example "line 3 is not JSON"
};
/// A text of nothing but white space has no members and no fault. A byte-order mark at the beginning is passed over.
[[nodiscard]] Parsed parse(std::string_view text);

/// The settings among the file's members. A null member is no setting.
[[nodiscard]] Dictionary settingsIn(const Members& members);

/// The value as a member of the file's object, or nothing for what JSON cannot hold or the file must not: opaque
/// objects, numbers that are not finite, text that is not UTF-8, more than kMostLevels levels.
[[nodiscard]] std::optional<Member> memberFor(const Value& value);

/// Whether the text can be a key or a string of the file.
[[nodiscard]] bool isUtf8(std::string_view text);

/// The text of the file. Sorted by key and one line for each member, so that it can be read and compared.
[[nodiscard]] std::string textOf(const Members& members);

}  // namespace kzm::settings

#endif
