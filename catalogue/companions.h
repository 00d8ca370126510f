// What is asked of the settings and localization libraries beyond the one function that each of them promises.
//
// A product may have put libraries of its own in their place. All that needs no more than the promised functions works
// over them all the same.
#ifndef KZM_CATALOGUE_COMPANIONS_H
#define KZM_CATALOGUE_COMPANIONS_H

#include <string>
#include <string_view>

#include <KZMUtilities/dictionary.h>

namespace kzm::catalogue {

/// Shows texts in the language of the locale. False when the library has no such choice and keeps its own language.
[[nodiscard]] bool chooseLanguage(const std::string& locale);

/// From now on the settings are these. Throws std::runtime_error when the library cannot be given settings.
void useSettings(Dictionary settings);

/// Stores the setting, or removes it when the value is null. Throws std::runtime_error when that fails.
void storeSetting(const Value& value, std::string_view keyPath);

}  // namespace kzm::catalogue

#endif
