// The parts of keys and of texts: "Units.Network.%@ MB/s" is the unit MB/s of the family Network, after a space;
// "Words.Battery.Full" is a word of the family Battery.
#ifndef TOOLS_STRINGS_KEY_H
#define TOOLS_STRINGS_KEY_H

#include <optional>
#include <string>
#include <string_view>

namespace kzm::strings {

inline constexpr std::string_view kPrefixes[] = {"Units.", "Words."};
inline constexpr std::string_view kNumber = "%@";
inline constexpr std::string_view kPercent = "%%";
inline constexpr std::string_view kNoBreakSpace = "\u00A0";

struct Key {
  std::string_view family;
  std::string_view pattern;  // what an English text says
};

/// The parts of "Units.<letters>.<pattern>" or "Words.<letters>.<pattern>"; nothing for a key of another form.
[[nodiscard]] std::optional<Key> parseKey(std::string_view key);

/// What a pattern or a text has to be filled in.
struct Slots {
  int numbers = 0;   // %@
  int percents = 0;  // %%, or a percent sign of another script
  bool operator==(const Slots&) const = default;
};

/// Nothing when the text has a "%" that belongs to neither.
[[nodiscard]] std::optional<Slots> slotsOf(std::string_view text);

/// A pattern or a text taken apart at its number. A text without a number is all before it.
struct Parts {
  std::string_view before;
  std::string_view after;
  bool hasNumber = false;
};
[[nodiscard]] Parts partsOf(std::string_view text);

/// Whether a space separates number and unit; a no-break space is one.
[[nodiscard]] bool isSpaced(std::string_view text);

/// The text without its number and the space beside it: "MB/s".
[[nodiscard]] std::string unitOf(std::string_view text);

}  // namespace kzm::strings

#endif
