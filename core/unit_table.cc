#include "core/unit_table.h"

#include <memory>
#include <string>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/resources.h>

#include "core/rows.h"
#include "core/shared.h"

namespace kzm::core {
namespace {

struct Family {
  UnitFamily family;
  std::string_view cacheKey;
  std::string_view keyPrefix;
};

// Deliberate: the keys of disk activity begin with "Units.Activity.", its cache key ends in "DiskActivity".
// clang-format off
constexpr Family kFamilies[kUnitFamilies] = {
    {UnitFamily::bandwidth,    "Localizations-Units-Network",      "Units.Network." },
    {UnitFamily::diskActivity, "Localizations-Units-DiskActivity", "Units.Activity."},
    {UnitFamily::diskSpace,    "Localizations-Units-Space",        "Units.Space."   },
    {UnitFamily::memory,       "Localizations-Units-Memory",       "Units.Memory."  },
    {UnitFamily::sensors,      "Localizations-Units-Sensors",      "Units.Sensors." },
};
// clang-format on

constexpr const Family& familyOf(UnitFamily family) { return kFamilies[static_cast<std::size_t>(family)]; }

static_assert(standInOrder(kFamilies, &Family::family));

}  // namespace

UnitTexts unitTexts(const UnitTable& table) {
  const Family& family = familyOf(table.family);
  const std::shared_ptr<const Dictionary> localized = cachedDictionary(family.cacheKey, [&] {
    Dictionary texts;
    for (const UnitRow& row : table.rows) texts.set(row.text, localizedUnit(family.keyPrefix, row.text, row.comment));
    return texts;
  });
  UnitTexts texts;
  texts.reserve(table.rows.size());
  for (const UnitRow& row : table.rows) {
    const Value* value = localized->find(row.text);
    const std::string* text = value != nullptr ? value->string() : nullptr;
    texts.push_back(text != nullptr ? std::optional<Template>(*text) : std::nullopt);
  }
  return texts;
}

std::string localizedUnit(std::string_view keyPrefix, std::string_view text, const char* comment) {
  std::string key(keyPrefix);
  key += text;
  return KZMLocalizedStringFromTableInBundle(key, "KZMUtilities", bundleWithIdentifier(kBundleIdentifier), comment);
}

}  // namespace kzm::core
