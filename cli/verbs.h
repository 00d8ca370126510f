// The verbs of the program. Each takes the words after its name and returns the program's exit status; bad input is
// thrown as an InputError.
#ifndef KZM_CLI_VERBS_H
#define KZM_CLI_VERBS_H

#include <span>
#include <string_view>

#include "cli/description.h"

namespace kzm::cli {

using Words = std::span<const std::string_view>;

/// One verb.
struct Verb {
  std::string_view name;
  std::string_view does;
  int (*run)(Words words);
  Description (*describe)();
};

/// All verbs, in the order in which the help lists them.
[[nodiscard]] std::span<const Verb> verbs();

int callVerb(Words words);
int formatVerb(Words words);
int languagesVerb(Words words);
int listVerb(Words words);
int monitorVerb(Words words);
int settingsVerb(Words words);
int showVerb(Words words);

[[nodiscard]] Description describeCall();
[[nodiscard]] Description describeFormat();
[[nodiscard]] Description describeLanguages();
[[nodiscard]] Description describeList();
[[nodiscard]] Description describeMonitor();
[[nodiscard]] Description describeSettings();
[[nodiscard]] Description describeShow();

}  // namespace kzm::cli

#endif
