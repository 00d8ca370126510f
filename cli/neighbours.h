// What the program asks of the settings and localization libraries beyond the one function that each of them promises.
//
// A product may have put libraries of its own in their place. The program works over them all the same, for whatever
// needs no more than the promised functions, and says in one line what it cannot do.
#ifndef KZM_CLI_NEIGHBOURS_H
#define KZM_CLI_NEIGHBOURS_H

#include <string>
#include <string_view>

#include <KZMUtilities/dictionary.h>

namespace kzm::cli {

/// Shows texts in the language of the locale. A library that has no such choice keeps its own language, which is said
/// on standard error.
void chooseLanguage(const std::string& locale);

/// From now on the settings are these. Throws std::runtime_error when the library cannot be given settings.
void useSettings(Dictionary settings);

/// Stores the setting, or removes it when the value is null. Throws std::runtime_error when that fails.
void storeSetting(const Value& value, std::string_view keyPath);

}  // namespace kzm::cli

#endif
