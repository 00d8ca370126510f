// A product's own settings library, which has the one function that is promised: every user likes millibars.
#include <KZMSettings/KZMSettings.h>

kzm::Value KZMSettingsObjectForKeyPath(std::string_view keyPath) {
  return keyPath == "Weather.Global.Units.Pressure" ? kzm::Value(2) : kzm::Value();
}
