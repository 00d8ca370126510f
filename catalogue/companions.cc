#include "catalogue/companions.h"

#include <stdexcept>
#include <utility>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMSettings/KZMSettings.h>

// Weak: where the library in use has no such function, its address is null.
// NOLINTBEGIN(readability-redundant-declaration): they are declared again, as weak.
[[gnu::weak]] void KZMLocalizationSetLanguages(std::span<const std::string> identifiers);
[[gnu::weak]] bool KZMSettingsSetObjectForKeyPath(const kzm::Value& object, std::string_view keyPath);
[[gnu::weak]] void KZMSettingsUseObjects(kzm::Dictionary objects);
// NOLINTEND(readability-redundant-declaration)

namespace kzm::catalogue {
namespace {

[[noreturn]] void failFor(const char* what) {
  throw std::runtime_error(std::string("the settings library in use cannot ") + what);
}

}  // namespace

bool chooseLanguage(const std::string& locale) {
  if (&KZMLocalizationSetLanguages == nullptr) return false;
  KZMLocalizationSetLanguages({&locale, 1});
  return true;
}

void useSettings(Dictionary settings) {
  if (&KZMSettingsUseObjects == nullptr) failFor("be given settings");
  KZMSettingsUseObjects(std::move(settings));
}

void storeSetting(const Value& value, std::string_view keyPath) {
  if (&KZMSettingsSetObjectForKeyPath == nullptr) failFor("store settings");
  if (!KZMSettingsSetObjectForKeyPath(value, keyPath)) {
    throw std::runtime_error("settings: the setting could not be stored");
  }
}

}  // namespace kzm::catalogue
