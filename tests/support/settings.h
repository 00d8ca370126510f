// Settings of a test's own.
#ifndef KZM_TESTS_SUPPORT_SETTINGS_H
#define KZM_TESTS_SUPPORT_SETTINGS_H

#include <string_view>
#include <utility>

#include <KZMSettings/KZMSettings.h>

namespace kzm::tests {

/// From now on the process has this one setting and no other.
inline void useOnlySetting(std::string_view keyPath, Value value) {
  Dictionary settings;
  settings.set(keyPath, std::move(value));
  KZMSettingsUseObjects(std::move(settings));
}

/// From now on the process has no settings.
inline void useNoSettings() { KZMSettingsUseObjects({}); }

}  // namespace kzm::tests

#endif
