// The library's own texts in every language, embedded when it is built: nothing has to be found on disk to run it.
//
// The definitions are written by tools/compile_strings from the string tables in this folder.
#ifndef RESOURCES_BUNDLE_H
#define RESOURCES_BUNDLE_H

#include <string_view>

#include <KZMLocalization/KZMLocalization.h>

namespace kzm::resources {

/// The identifier of the library's bundle.
inline constexpr std::string_view kBundleIdentifier = "org.kzm.utilities";

/// The bundle of that identifier, or null when there is none. Bundles are constants and live for ever; may be called
/// from any thread.
[[nodiscard]] const ResourceBundle* bundleWithIdentifier(std::string_view identifier) noexcept;

}  // namespace kzm::resources

#endif
