#include <KZMSettings/KZMSettings.h>

kzm::Value KZMSettingsObjectForKeyPath(std::string_view) { return nullptr; }
