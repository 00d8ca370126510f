// Which language's texts a table is shown in.
#ifndef KZM_LOCALIZATION_CHOICE_H
#define KZM_LOCALIZATION_CHOICE_H

#include <span>
#include <string>
#include <string_view>

#include <KZMLocalization/KZMLocalization.h>

#include "localization/texts.h"

namespace kzm::localization {

/// The texts of one table of a bundle in the language chosen for the user, with those of the development language where
/// it lacks one; null when the bundle has no table of that name. Made on first use and kept for the life of the
/// process; may be called from any thread at any time, and takes no lock once the choice is made.
[[nodiscard]] const Texts* textsFor(const ResourceBundle& bundle, std::string_view table);

/// Replaces the wanted languages, best first, and with them every choice made so far. May be called from any thread.
void setLanguages(std::span<const std::string> identifiers);

}  // namespace kzm::localization

#endif
