#include "cli/words.h"

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/resources.h>

namespace kzm::cli {

std::string word(std::string_view key) {
  const std::string full = "Words." + std::string(key);
  std::string text =
      KZMLocalizedStringFromTableInBundle(full, "Words", bundleWithIdentifier(kBundleIdentifier), nullptr);
  // A product's own localization library need not know the table.
  return text == full ? full.substr(full.find('.', full.find('.') + 1) + 1) : text;
}

}  // namespace kzm::cli
