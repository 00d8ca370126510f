// Writes JSON piece by piece, with a line and two spaces a level for each part.
#ifndef KZM_SETTINGS_JSON_TEXT_H
#define KZM_SETTINGS_JSON_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace kzm::settings {

/// The text as a JSON string, its quotation marks included; one that is not UTF-8 throws nlohmann::json::type_error.
[[nodiscard]] std::string jsonString(std::string_view text);

/// The shortest text that reads back to the same double, always with a point or an exponent.
[[nodiscard]] std::string shortest(double number);

class JsonText {
 public:
  /// The level is that of the container in which the text will be a part: 0 for a whole text.
  explicit JsonText(std::size_t level) : level_(level) {}

  /// A part that is no container; after key it is a member's value.
  void add(std::string_view part);
  void key(std::string_view name);
  /// A container begins or ends: one of "{[" or "}]".
  void open(char bracket);
  void close(char bracket);

  [[nodiscard]] std::string take() { return std::move(text_); }

 private:
  void beginPart();
  void newLine();

  std::string text_;
  std::size_t level_;
  std::size_t open_ = 0;  // containers
  bool isFirst_ = true;   // the container has no part yet
  bool hasKey_ = false;   // the next part belongs to a key
};

}  // namespace kzm::settings

#endif
