// The table of what `kzmutil format` can write.
#ifndef KZM_CLI_FORMAT_FAMILIES_H
#define KZM_CLI_FORMAT_FAMILIES_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <KZMUtilities/dictionary.h>

#include "cli/flags.h"

namespace kzm::cli {

using OptionFlag = Flag<Dictionary>;

/// One family of quantities.
struct Family {
  std::string_view name;   // "memory" or, of the two families of families, "sensor fan"
  std::string_view value;  // what a value is: "bytes"
  std::string (*text)(const Dictionary& options, double value);
  std::string_view flags;  // the names of the flags it takes, without their dashes, separated by spaces
};

[[nodiscard]] std::span<const Family> families();

/// The flags of the family, in the order in which its help shows them.
[[nodiscard]] std::vector<OptionFlag> flagsOf(const Family& family);

}  // namespace kzm::cli

#endif
