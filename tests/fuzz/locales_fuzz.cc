// Any bytes as the name of a locale or a list of languages: each has an identifier or none, that identifier names
// itself, and the styles and texts of whatever is chosen can be used.
#include <string>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/resources.h>

#include "port/environment_locale.h"
#include "tests/fuzz/input.h"

namespace kzm::fuzz {
namespace {

constexpr std::string_view kVariables[] = {"LC_ALL",      "LC_NUMERIC", "LC_MEASUREMENT", "LC_TIME",
                                           "LC_MESSAGES", "LANG",       "LANGUAGE"};

void checkEnvironment(Input& input) {
  std::vector<std::string> values;
  for (std::size_t i = 0; i < std::size(kVariables); ++i) values.emplace_back(input.textTo('\n'));
  const port::Environment environment = [&values](const char* name) -> const char* {
    for (std::size_t i = 0; i < std::size(kVariables); ++i) {
      if (kVariables[i] == name) return values[i].empty() ? nullptr : values[i].c_str();
    }
    return nullptr;
  };
  for (const std::string& locale :
       {port::numberLocale(environment), port::measurementLocale(environment), port::dateLocale(environment)}) {
    demand(port::usableLocale(locale) == locale, "what the environment asks for can be used");
  }
  for (const std::string& language : port::textLocales(environment)) demand(!language.empty(), "a language has a name");
}

void checkName(const std::string& name) {
  const std::string identifier = port::localeIdentifier(name);
  demand(identifier.empty() || port::localeIdentifier(identifier) == identifier, "an identifier names itself");
  static_cast<void>(KZMUtilitiesPosixLocale(std::make_shared<Locale>(name)));
  setCurrentLocale(name);
  demand(!KZMUtilitiesFormatNumber({{"decimals", 2}}, -1234567.891).empty(), "a number has a text in every locale");
  const std::string languages[] = {name};
  KZMLocalizationSetLanguages(languages);
  const std::string text = KZMLocalizedStringFromTableInBundle("Units.Memory.%@ GB", "KZMUtilities",
                                                               bundleWithIdentifier(kBundleIdentifier), nullptr);
  demand(text.find("%@") != std::string::npos, "a unit has a place for its number in every language");
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  kzm::fuzz::Input input(bytes, size);
  kzm::fuzz::checkEnvironment(input);
  kzm::fuzz::checkName(std::string(input.rest()));
  return 0;
}
