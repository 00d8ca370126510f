#include "cli/process_options.h"

#include <string>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/formatters.h>

#include "cli/errors.h"

namespace kzm::cli {
namespace {

void useLocale(std::string_view identifier) {
  setCurrentLocale(identifier);
  const std::string usable[] = {currentLocale()};
  KZMLocalizationSetLanguages(usable);
}

struct ProcessOption {
  std::string_view name;
  void (*use)(std::string_view value);
};
constexpr ProcessOption kProcessOptions[] = {
    {"--locale", useLocale},
};

}  // namespace

std::string_view takeValue(Words& words) {
  if (words.size() < 2) throw InputError(std::string(words.front()) + ": its value is missing");
  const std::string_view value = words[1];
  words = words.subspan(2);
  return value;
}

bool takeProcessOption(Words& words) {
  for (const ProcessOption& option : kProcessOptions) {
    if (words.empty() || words.front() != option.name) continue;
    option.use(takeValue(words));
    return true;
  }
  return false;
}

}  // namespace kzm::cli
