// The user's units: which settings there are, and what their codes mean.
#ifndef KZM_CLI_SETTINGS_UNIT_SETTINGS_H
#define KZM_CLI_SETTINGS_UNIT_SETTINGS_H

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include <KZMUtilities/default_units.h>

namespace kzm::cli {

/// The code of every setting that leaves the choice to the region.
inline constexpr std::int64_t kRegionsChoice = 0;

/// One setting. The meanings are those of the codes 1, 2, ... in this order.
struct ListedSetting {
  std::string_view keyPath;
  std::string_view what;  // is measured in it
  std::span<const MeasurementUnit> meanings;
  MeasurementUnit (KZMUtilitiesDefaultUnits::*unit)() const;  // the unit in force
};

[[nodiscard]] std::span<const ListedSetting> listedSettings();

/// The setting at the key path; an unknown one is an InputError that names those there are.
[[nodiscard]] const ListedSetting& settingAt(std::string_view keyPath);

/// The code that is typed as such, or as the name of what it means, in any case of its letters. Anything else is an
/// InputError that names the codes there are.
[[nodiscard]] std::int64_t codeIn(const ListedSetting& setting, std::string_view text);

/// What the code means: "region" or the unit's name.
[[nodiscard]] std::string_view meaningOf(const ListedSetting& setting, std::int64_t code);

/// The code in force: what is stored, as the library reads it, or kRegionsChoice.
[[nodiscard]] std::int64_t codeInForce(const ListedSetting& setting);

}  // namespace kzm::cli

#endif
