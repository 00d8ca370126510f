// The verbs of the program. Each takes the words behind it and returns the program's exit status; bad input is thrown
// as an InputError.
#ifndef KZM_CLI_VERBS_H
#define KZM_CLI_VERBS_H

#include <span>
#include <string_view>

namespace kzm::cli {

using Words = std::span<const std::string_view>;

int callVerb(Words words);
int formatVerb(Words words);
int listVerb(Words words);
int monitorVerb(Words words);
int settingsVerb(Words words);
int showVerb(Words words);

}  // namespace kzm::cli

#endif
