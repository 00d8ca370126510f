#include <string_view>
#include <utility>

#include <KZMSettings/KZMSettings.h>

#include "port/never_destroyed.h"
#include "settings/location.h"
#include "settings/store.h"

namespace {

kzm::settings::Store& storeOfUser() {
  static kzm::port::NeverDestroyed<kzm::settings::Store> store(kzm::settings::fileOfUser());
  return *store;
}

}  // namespace

kzm::Value KZMSettingsObjectForKeyPath(std::string_view keyPath) { return storeOfUser().find(keyPath); }

bool KZMSettingsSetObjectForKeyPath(const kzm::Value& object, std::string_view keyPath) {
  return storeOfUser().set(object, keyPath);
}

kzm::Dictionary KZMSettingsObjects() { return storeOfUser().objects(); }

void KZMSettingsUseObjects(kzm::Dictionary objects) { storeOfUser().useObjects(std::move(objects)); }
