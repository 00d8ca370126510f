// The user's settings, by dotted key path.
//
// This library is the settings part of the product it is built into. Another one may take its place, as long as it
// offers KZMSettingsObjectForKeyPath. The settings are kept in one JSON file, KZMUtilities/settings.json under the
// user's configuration directory (XDG_CONFIG_HOME, else ~/.config). A missing, broken or unreadable file means that
// there are no settings; a broken or unreadable one is reported in one line on standard error.
//
// Every function may be called from any thread at any time, also while a thread or the process ends. A read waits
// for no other thread unless the settings changed since the thread's last one, and reading a number does not allocate.
// A few times a second one read looks whether the file is another, and waits for the disk.
#ifndef KZMSETTINGS_H
#define KZMSETTINGS_H

#include <string_view>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

/// The setting at the key path, such as "Weather.Global.Units.Pressure"; null when there is none.
/// A change made in this process is seen by the very next read, one made by another process within a second.
///
/// Example:
///   KZMSettingsUseObjects({{"Weather.Global.Units.Pressure", 2}});
///   KZMSettingsObjectForKeyPath("Weather.Global.Units.Pressure")  // 2
[[nodiscard]] KZM_EXPORT kzm::Value KZMSettingsObjectForKeyPath(std::string_view keyPath);

/// Stores the setting at the key path; a null object removes it. The file is replaced as a whole or not at all.
/// Returns false, and leaves every setting as it was, when the object holds something that JSON cannot (an opaque
/// object, a number that is not finite, text that is not UTF-8) or is nested too deep (64 levels with the file's own),
/// when the key path is not UTF-8, when the file would grow beyond 1 MiB, when it is broken, when it cannot be written
/// with the mode and owner it has, or when another process keeps it locked for two seconds. A failure of the file is
/// reported in one line on standard error, with the file and the reason.
///
/// Example:
///   KZMSettingsSetObjectForKeyPath(std::nan(""), "Weather.Global.Units.Pressure")  // false
[[nodiscard]] KZM_EXPORT bool KZMSettingsSetObjectForKeyPath(const kzm::Value& object, std::string_view keyPath);

/// All settings, key path to value.
///
/// Example:
///   KZMSettingsUseObjects({{"Weather.Global.Units.Pressure", 2}, {"Weather.Global.Units.Precipitation", 1}});
///   KZMSettingsObjects().contains("Weather.Global.Units.Precipitation")  // true
[[nodiscard]] KZM_EXPORT kzm::Dictionary KZMSettingsObjects();

/// From now on the settings are exactly these, held in memory: the stored ones are neither read nor written any more.
///
/// Example:
///   KZMSettingsUseObjects({});
///   KZMSettingsObjects().empty()  // true
KZM_EXPORT void KZMSettingsUseObjects(kzm::Dictionary objects);

#endif
