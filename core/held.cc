#include "core/held.h"

#include <utility>

#include <KZMUtilities/formatters.h>

namespace kzm::core {
namespace {

// The texts in the shared cache. On the first call all rows are looked up and stored.
std::shared_ptr<const Dictionary> cachedTexts(const UnitTable& table) {
  return cachedDictionary(table.cacheKey, [&] {
    Dictionary texts;
    for (const UnitRow& row : table.rows) texts.set(row.text(), localizedText(row));
    return texts;
  });
}

}  // namespace

NumberStyle HeldStyles::fetch(DigitRule rule, std::int64_t digits) {
  const std::uint64_t changes = CacheChanges::count();
  const NumberStyle style =
      styleOf(rule == DigitRule::exactly ? *KZMUtilitiesDecimalFormatterWithFractions(digits, digits)
                                         : *KZMUtilitiesDecimalFormatterWithMaximum(digits));
  if (digits < 0 || digits >= kDigits) return style;
  if (changes_ != changes) styles_ = {};
  changes_ = changes;
  return styles_[static_cast<std::size_t>(rule)][static_cast<std::size_t>(digits)] = style;
}

// Looking texts up may lead through a host's own library and back here, and the cache may change in the meantime: what
// was made is kept under the count that it was made for.
void HeldTexts::fetch(const UnitTable& table) {
  const std::uint64_t changes = CacheChanges::count();
  std::shared_ptr<const Dictionary> texts = cachedTexts(table);
  std::vector<Template> templates(table.rows.size());
  for (std::size_t row = 0; row < templates.size(); ++row) {
    const Value* value = texts->find(table.rows[row].text());
    const std::string* text = value != nullptr ? value->string() : nullptr;
    if (text != nullptr) templates[row] = Template(*text);
  }
  templates_ = std::move(templates);
  texts_ = std::move(texts);
  changes_ = changes;
}

}  // namespace kzm::core
