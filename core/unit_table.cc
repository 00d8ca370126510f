#include "core/unit_table.h"

#include <algorithm>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/resources.h>

namespace kzm::core {

std::string localizedText(const UnitTable& table, std::size_t row) {
  constexpr std::size_t kLongestKey = 64;
  const UnitRow& unit = table.rows[row];
  char key[kLongestKey];
  const char* end = std::ranges::copy(unit.text, std::ranges::copy(table.keyPrefix, key).out).out;
  return KZMLocalizedStringFromTableInBundle({key, end}, "KZMUtilities", bundleWithIdentifier(kBundleIdentifier),
                                             unit.comment);
}

}  // namespace kzm::core
