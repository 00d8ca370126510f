// The flags that give the library's options on a command line.
#ifndef KZM_CLI_FORMAT_OPTION_FLAGS_H
#define KZM_CLI_FORMAT_OPTION_FLAGS_H

#include <span>
#include <string_view>

#include "cli/format/families.h"

namespace kzm::cli {

/// Every flag that some family takes.
[[nodiscard]] std::span<const OptionFlag> optionFlags();

/// "10:2,100:1" as decimals rules: two digits below 10, one below 100. Anything else is an InputError.
[[nodiscard]] Array decimalsRules(std::string_view text);

}  // namespace kzm::cli

#endif
