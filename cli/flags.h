// The one way in which the verbs read their command lines.
//
// A verb lists its flags as rows. A flag is written "--name", with its value after it or after a "=". Flags may be
// anywhere among the other words; "--" ends them. Words that begin with one dash are numbers, not flags.
#ifndef KZM_CLI_FLAGS_H
#define KZM_CLI_FLAGS_H

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/description.h"
#include "cli/errors.h"
#include "cli/process_options.h"
#include "cli/verbs.h"

namespace kzm::cli {

/// One flag of a verb that gathers its choices in a Target.
template <class Target>
struct Flag : FlagText {
  // Takes over the value; `option` is the name without its dashes. Throws InputError for a bad value.
  void (*use)(Target& target, std::string_view option, std::string_view value);
};

/// What a verb without flags gathers.
struct None {};

/// Takes the flag off the front, if it is there, and gives its value ("" when it takes none).
[[nodiscard]] std::optional<std::string_view> takeFlagNamed(Words& words, std::string_view name, bool takesValue);

/// Refuses a word that looks like a flag and is none of the verb's.
[[noreturn]] void refuseFlag(std::string_view verb, std::string_view word);

/// Takes one of the flags off the front and puts it to use; false when none is there.
template <class Target>
bool takeFlag(Words& words, std::span<const Flag<Target>> flags, Target& target) {
  for (const Flag<Target>& flag : flags) {
    const std::optional<std::string_view> value = takeFlagNamed(words, flag.name, !flag.value.empty());
    if (!value.has_value()) continue;
    try {
      flag.use(target, flag.name.substr(2), *value);
    } catch (const InputError& error) {
      throw InputError(std::string(flag.name) + ": " + error.what());
    }
    return true;
  }
  return false;
}

/// Takes all flags off the front, also those that decide for the process; true when "--help" is among them.
template <class Target>
bool takeLeadingFlags(std::string_view verb, Words& words, std::span<const Flag<Target>> flags, Target& target) {
  bool help = false;
  while (!words.empty() && words.front().starts_with("--") && words.front() != "--") {
    if (takeProcessOption(words) || takeFlag(words, flags, target)) continue;
    if (words.front() != "--help") refuseFlag(verb, words.front());
    help = true;
    words = words.subspan(1);
  }
  return help;
}

/// What remains of a command line without its flags.
struct Operands {
  std::vector<std::string_view> words;
  bool help = false;  // "--help" was among the flags
};

/// Reads the whole command line of a verb, wherever its flags are.
template <class Target>
Operands takeFlags(std::string_view verb, Words words, std::span<const Flag<Target>> flags, Target& target) {
  Operands operands;
  for (;;) {
    if (takeLeadingFlags(verb, words, flags, target)) operands.help = true;
    if (words.empty() || words.front() == "--") break;
    operands.words.push_back(words.front());
    words = words.subspan(1);
  }
  if (!words.empty()) operands.words.insert(operands.words.end(), words.begin() + 1, words.end());
  return operands;
}

}  // namespace kzm::cli

#endif
