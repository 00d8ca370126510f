// Where the user's settings are kept.
#ifndef KZM_SETTINGS_LOCATION_H
#define KZM_SETTINGS_LOCATION_H

#include <string>
#include <string_view>

namespace kzm::settings {

/// The settings file for these directories: under the configuration directory when that is an absolute path, else under
/// .config in the home directory when that is one; empty when neither is.
[[nodiscard]] std::string fileUnder(std::string_view configurationDirectory, std::string_view homeDirectory);

/// The settings file of the user who runs this process, from XDG_CONFIG_HOME, HOME and the user database, in this
/// order; empty when none of them knows a place.
[[nodiscard]] std::string fileOfUser();

}  // namespace kzm::settings

#endif
