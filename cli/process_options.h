// The options that every verb understands: those that decide for the whole process.
#ifndef KZM_CLI_PROCESS_OPTIONS_H
#define KZM_CLI_PROCESS_OPTIONS_H

#include <string_view>
#include <vector>

#include "cli/description.h"
#include "cli/verbs.h"

namespace kzm::cli {

/// Takes the option at the front and its value; the value is returned. An option without its value is an InputError.
std::string_view takeValue(Words& words);

/// Takes "--locale ID" or "--time-zone ID" off the front and puts it into force; false when neither is there.
/// An unknown time zone, and a locale that is none or of no known language, is an InputError.
bool takeProcessOption(Words& words);

/// What they are, for the help.
[[nodiscard]] std::vector<FlagText> processOptionTexts();

}  // namespace kzm::cli

#endif
