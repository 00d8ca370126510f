#include <KZMLocalization/KZMLocalization.h>

#include "localization/choice.h"

namespace {

using kzm::LocalizedText;
using kzm::localization::Choice;

constexpr std::string_view kPrefix = "Units.";

constexpr bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// The template that a key ends in, so that no prefix ever reaches the screen; the key itself when it has no prefix.
std::string_view templateOf(std::string_view key) {
  if (!key.starts_with(kPrefix)) return key;
  std::size_t end = kPrefix.size();
  while (end < key.size() && isLetter(key[end])) ++end;
  if (end == kPrefix.size() || end == key.size() || key[end] != '.') return key;
  return key.substr(end + 1);
}

const LocalizedText* find(std::span<const LocalizedText> texts, std::string_view key) {
  std::size_t first = 0;
  for (std::size_t count = texts.size(); count > 0;) {
    const std::size_t half = count / 2;
    const int order = texts[first + half].key.compare(key);
    if (order == 0) return &texts[first + half];
    if (order < 0) first += half + 1;
    count = order < 0 ? count - half - 1 : half;
  }
  return nullptr;
}

}  // namespace

std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view table,
                                                const kzm::ResourceBundle* bundle, const char* /*comment*/) {
  const Choice* choice = bundle == nullptr ? nullptr : kzm::localization::choiceFor(*bundle, table);
  const LocalizedText* text = choice == nullptr ? nullptr : find(choice->texts, key);
  if (text == nullptr && choice != nullptr) text = find(choice->developmentTexts, key);
  return std::string(text == nullptr ? templateOf(key) : text->text);
}

void KZMLocalizationSetLanguages(std::span<const std::string> identifiers) {
  kzm::localization::setLanguages(identifiers);
}
