#include "cli/neighbours.h"

#include <iostream>
#include <stdexcept>
#include <utility>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMSettings/KZMSettings.h>

// Weak: where the library in use has no such function, its address is null.
[[gnu::weak]] void KZMLocalizationSetLanguages(std::span<const std::string> identifiers);
[[gnu::weak]] bool KZMSettingsSetObjectForKeyPath(const kzm::Value& object, std::string_view keyPath);
[[gnu::weak]] void KZMSettingsUseObjects(kzm::Dictionary objects);

namespace kzm::cli {
namespace {

void demand(bool isThere, const char* what) {
  if (!isThere) throw std::runtime_error(std::string("the settings library in use cannot ") + what);
}

}  // namespace

void chooseLanguage(const std::string& locale) {
  if (&KZMLocalizationSetLanguages == nullptr) {
    std::cerr << "kzmutil: the localization library in use cannot choose a language; texts stay in its own\n";
    return;
  }
  KZMLocalizationSetLanguages({&locale, 1});
}

void useSettings(Dictionary settings) {
  demand(&KZMSettingsUseObjects != nullptr, "be given settings");
  KZMSettingsUseObjects(std::move(settings));
}

void storeSetting(const Value& value, std::string_view keyPath) {
  demand(&KZMSettingsSetObjectForKeyPath != nullptr, "store settings");
  if (!KZMSettingsSetObjectForKeyPath(value, keyPath)) {
    throw std::runtime_error("settings: the settings file could not be written");
  }
}

}  // namespace kzm::cli
