// The library's own resources.
//
// Bundles live forever. Every function may be called from any thread at any time.
#ifndef KZMUTILITIES_RESOURCES_H
#define KZMUTILITIES_RESOURCES_H

#include <string_view>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/export.h>

namespace kzm {

/// The identifier of the bundle that holds the "KZMUtilities" string tables.
inline constexpr std::string_view kBundleIdentifier = "org.kzm.utilities";

/// The bundle with this identifier; null when there is none.
///
/// Example:
///   bundleWithIdentifier(kBundleIdentifier)->developmentLanguage  // "en"
[[nodiscard]] KZM_EXPORT const ResourceBundle* bundleWithIdentifier(std::string_view identifier) noexcept;

}  // namespace kzm

#endif
