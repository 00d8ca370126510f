#include "core/unit_table.h"

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/resources.h>

namespace kzm::core {

std::string localizedText(const UnitRow& row) {
  return KZMLocalizedStringFromTableInBundle(row.key(), "KZMUtilities", bundleWithIdentifier(kBundleIdentifier),
                                             row.comment());
}

}  // namespace kzm::core
