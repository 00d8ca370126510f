// Texts in the user's language, from the string tables of a resource bundle.
//
// This library is the localization part of the product it is built into. Another one may take its place, as long as it
// offers KZMLocalizedStringFromTableInBundle.
//
// Every function may be called from any thread at any time.
#ifndef KZMLOCALIZATION_H
#define KZMLOCALIZATION_H

#include <span>
#include <string>
#include <string_view>

#include <KZMUtilities/export.h>

namespace kzm {

/// The texts of one table in one language. Keys and texts are two lists in the same order; in both, a zero byte ends
/// each entry. So a table is constant data without a pointer, and one that nobody reads costs nothing.
struct StringTable {
  std::string_view language;  // as its folder is named: "fr", "pt-BR", "zh-Hant"
  std::string_view name;      // "KZMUtilities"
  std::string_view keys;      // "Units.Memory.%@ GB\0Units.Memory.%@ MB\0"
  std::string_view texts;     // "%@ Go\0%@ Mo\0"
};

/// The string tables of a library. Bundles are constants: they and everything they name live forever.
struct ResourceBundle {
  std::string_view identifier;
  std::string_view developmentLanguage;
  std::span<const StringTable> tables;
};

}  // namespace kzm

/// The text for `key` in the best language for the user that the bundle has; keys that this language lacks come from
/// the development language. An unknown key, table or null bundle gives the template that the key ends in: the key
/// without its "Units.<family>." prefix. The comment is a hint for translators and has no effect; it may be null.
///
/// Example (English): of a table that the bundle does not have
///   KZMLocalizedStringFromTableInBundle("Units.Memory.%@ GB", "Other", nullptr, nullptr)  // "%@ GB"
[[nodiscard]] KZM_EXPORT std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view table,
                                                                         const kzm::ResourceBundle* bundle,
                                                                         const char* comment);

/// Chooses the languages in which texts are wanted, best first, as locale identifiers ("de_CH", "sr_Latn", "fr").
/// Without it they come from the environment: LANGUAGE, LC_ALL, LC_MESSAGES, LANG. Meant for start-up: a text that was
/// looked up before stays in its language wherever it was kept. A malformed identifier is passed over; when none is
/// left, texts are in the development language.
///
/// Example:
///   const std::string languages[] = {"en_US", "en"};
///   KZMLocalizationSetLanguages(languages);
///   KZMLocalizedStringFromTableInBundle("Units.Memory.%@ GB", "Other", nullptr, nullptr)  // "%@ GB"
KZM_EXPORT void KZMLocalizationSetLanguages(std::span<const std::string> identifiers);

#endif
