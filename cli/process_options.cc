#include "cli/process_options.h"

#include <optional>
#include <string>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/dates.h>
#include <KZMUtilities/formatters.h>

#include "cli/errors.h"
#include "cli/flags.h"

namespace kzm::cli {
namespace {

void useLocale(std::string_view identifier) {
  setCurrentLocale(identifier);
  const std::string usable[] = {currentLocale()};
  KZMLocalizationSetLanguages(usable);
}

void useTimeZone(std::string_view identifier) {
  const std::optional<TimeZone> zone = TimeZone::named(identifier);
  if (!zone.has_value()) throw InputError("no time zone " + quoted(identifier) + "; names are such as Europe/Paris");
  TimeZone::setDefaultZone(*zone);
}

struct ProcessOption {
  std::string_view name;
  std::string_view value;
  std::string_view help;
  void (*use)(std::string_view value);
};
constexpr ProcessOption kProcessOptions[] = {
    {"--locale",    "ID", "locale of numbers, texts and default units, such as de_CH", useLocale  },
    {"--time-zone", "ID", "default time zone, such as Europe/Paris",                   useTimeZone},
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
    const std::optional<std::string_view> value = takeFlagNamed(words, option.name, true);
    if (!value.has_value()) continue;
    option.use(*value);
    return true;
  }
  return false;
}

std::string processOptionsHelp() {
  std::string text;
  for (const ProcessOption& option : kProcessOptions) text += flagLine(option.name, option.value, option.help);
  return text;
}

}  // namespace kzm::cli
