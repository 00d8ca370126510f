// Which language's texts a table is shown in.
#ifndef LOCALIZATION_CHOICE_H
#define LOCALIZATION_CHOICE_H

#include <span>
#include <string>
#include <string_view>

#include <KZMLocalization/KZMLocalization.h>

namespace kzm::localization {

/// The texts of one table of a bundle in the language chosen for the user, and those that stand in for missing ones.
struct Choice {
  const ResourceBundle* bundle;
  std::string_view table;
  std::span<const LocalizedText> texts;
  std::span<const LocalizedText> developmentTexts;
};

/// The choice for a table of a bundle, or null when the bundle has no table of that name. Made on first use and kept
/// for the life of the process; may be called from any thread at any time, takes no lock, and allocates nothing once
/// the choice is made.
[[nodiscard]] const Choice* choiceFor(const ResourceBundle& bundle, std::string_view table);

/// Replaces the wanted languages, best first, and with them every choice made so far. May be called from any thread.
void setLanguages(std::span<const std::string> identifiers);

}  // namespace kzm::localization

#endif
