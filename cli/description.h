// What a verb says of itself: its help, the manual page and the shells' completions are all made of this.
#ifndef KZM_CLI_DESCRIPTION_H
#define KZM_CLI_DESCRIPTION_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::cli {

/// A flag as a reader sees it.
struct FlagText {
  std::string_view name;   // "--unit-size"
  std::string_view value;  // what the help calls its value; empty when it takes none
  std::string_view help;
};

/// A word that a verb takes, such as a topic or a family of quantities.
struct Choice {
  std::string_view name;  // one word, or two: "sensor fan"
  std::string_view help;
  std::vector<FlagText> flags = {};             // that go with this choice alone
  std::vector<std::string_view> operands = {};  // words that may follow it
};

/// One verb.
struct Description {
  std::vector<std::string_view> usage;  // what follows "kzmutil ", one line each
  std::string_view text = {};           // more to know
  std::vector<Choice> choices = {};
  std::vector<FlagText> flags = {};          // beside those that every verb takes
  std::vector<std::string_view> names = {};  // words that it takes, too many for its help
};

/// The flags without what they do.
template <class Flags>
std::vector<FlagText> textsOf(const Flags& flags) {
  return {std::begin(flags), std::end(flags)};
}

/// "  --unit-size N        help".
[[nodiscard]] std::string flagLine(const FlagText& flag);

/// A line for each of the flags, and for those that every verb takes.
[[nodiscard]] std::string flagsHelp(std::span<const FlagText> flags);

/// "usage: kzmutil show [TOPIC]", the text, the choices and the flags.
[[nodiscard]] std::string helpText(const Description& verb);

}  // namespace kzm::cli

#endif
