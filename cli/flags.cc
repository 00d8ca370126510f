#include "cli/flags.h"

namespace kzm::cli {

std::optional<std::string_view> takeFlagNamed(Words& words, std::string_view name, bool takesValue) {
  if (words.empty() || !words.front().starts_with(name)) return std::nullopt;
  const std::string_view rest = words.front().substr(name.size());
  if (!rest.empty() && rest.front() != '=') return std::nullopt;
  if (!takesValue && !rest.empty()) throw InputError(std::string(name) + " takes no value");
  if (takesValue && rest.empty()) return takeValue(words);
  words = words.subspan(1);
  return rest.empty() ? rest : rest.substr(1);
}

void refuseFlag(std::string_view verb, std::string_view word) {
  throw InputError(std::string(verb) + ": no option " + inQuotes(word) + "; `kzmutil " + std::string(verb) +
                   " --help` lists them");
}

}  // namespace kzm::cli
