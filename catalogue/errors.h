// The one way in which input is refused.
#ifndef KZM_CATALOGUE_ERRORS_H
#define KZM_CATALOGUE_ERRORS_H

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace kzm::catalogue {

/// Input that a person can correct. Its text is one line: on the program's standard error, or as kzm_last_error.
class InputError : public std::runtime_error {
 public:
  explicit InputError(std::string text) : std::runtime_error(oneLine(std::move(text))) {}

 private:
  // What a caller typed may be quoted in the text: it must not break the line, nor reach the terminal as a command.
  static std::string oneLine(std::string text) {
    for (char& c : text) {
      if (static_cast<unsigned char>(c) < ' ' || c == '\x7f') c = '?';
    }
    return text;
  }
};

/// The text between quotation marks, for an InputError; a long one is cut.
[[nodiscard]] inline std::string inQuotes(std::string_view text) {
  constexpr std::size_t kLongest = 60;  // bytes
  if (text.size() <= kLongest) return "\"" + std::string(text) + "\"";
  return "\"" + std::string(text.substr(0, kLongest)) + "...\"";
}

}  // namespace kzm::catalogue

#endif
