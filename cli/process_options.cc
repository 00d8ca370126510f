#include "cli/process_options.h"

#include <iostream>
#include <optional>
#include <string>

#include <KZMUtilities/dates.h>
#include <KZMUtilities/formatters.h>

#include "catalogue/companions.h"
#include "cli/errors.h"
#include "cli/flags.h"
#include "cli/locale_name.h"

namespace kzm::cli {
namespace {

void useLocale(std::string_view identifier) {
  const LocaleName judged = judgeLocaleName(identifier);
  if (judged == LocaleName::malformed)
    throw InputError("no locale " + inQuotes(identifier) + "; names are such as de_CH");
  if (judged == LocaleName::unknownLanguage)
    throw InputError("locale " + inQuotes(identifier) + " is of no known language");
  setCurrentLocale(identifier);
  if (!catalogue::chooseLanguage(std::string(identifier))) {
    std::cerr << "kzmutil: the localization library in use cannot choose a language; texts stay in its own\n";
  }
}

void useTimeZone(std::string_view identifier) {
  const std::optional<TimeZone> zone = TimeZone::named(identifier);
  if (!zone.has_value()) throw InputError("no time zone " + inQuotes(identifier) + "; names are such as Europe/Paris");
  TimeZone::setDefaultZone(*zone);
}

struct ProcessOption : FlagText {
  void (*use)(std::string_view value);
};

// clang-format off
constexpr ProcessOption kProcessOptions[] = {
    {{"--locale",    "ID", "locale of numbers, texts and default units, such as de_CH"}, useLocale},
    {{"--time-zone", "ID", "default time zone, such as Europe/Paris"},                   useTimeZone},
};
// clang-format on

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

std::vector<FlagText> processOptionTexts() { return textsOf(kProcessOptions); }

}  // namespace kzm::cli
