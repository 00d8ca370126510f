#include <optional>

#include <KZMLocalization/KZMLocalization.h>

#include "localization/choice.h"
#include "port/ascii.h"

namespace {

constexpr std::string_view kPrefix = "Units.";

/// The template that a key ends in, so that no prefix ever reaches the screen; the key itself when it has no prefix.
std::string_view templateOf(std::string_view key) {
  if (!key.starts_with(kPrefix)) return key;
  std::size_t end = kPrefix.size();
  while (end < key.size() && kzm::port::isLetter(key[end])) ++end;
  if (end == kPrefix.size() || end == key.size() || key[end] != '.') return key;
  return key.substr(end + 1);
}

}  // namespace

std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view table,
                                                const kzm::ResourceBundle* bundle, const char* /*comment*/) {
  const kzm::localization::Texts* texts = bundle != nullptr ? kzm::localization::textsFor(*bundle, table) : nullptr;
  const std::optional<std::string_view> text = texts != nullptr ? texts->find(key) : std::nullopt;
  return std::string(text.has_value() ? *text : templateOf(key));
}

void KZMLocalizationSetLanguages(std::span<const std::string> identifiers) {
  kzm::localization::setLanguages(identifiers);
}
