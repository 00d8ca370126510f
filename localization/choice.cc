#include "localization/choice.h"

#include <atomic>
#include <forward_list>
#include <mutex>
#include <unicode/localematcher.h>
#include <vector>

#include <KZMUtilities/key.h>

#include "port/environment_locale.h"
#include "port/never_destroyed.h"

namespace kzm::localization {
namespace {

/// A table for which a language was chosen.
struct Choice {
  const ResourceBundle* bundle;
  std::string_view table;  // the table's own name: the one that was asked for may be gone after the call
  Texts texts;
  const Choice* earlier;
};

/// Languages that are wanted, with the choices made for them. Neither lists that were replaced nor choices are ever
/// removed: a reader may be inside.
struct Wanted {
  std::vector<icu::Locale> languages;
  std::forward_list<Choice> choices;
  std::atomic<const Choice*> latest{nullptr};
};

// Held while something is made or replaced; what is there is read without it.
constinit std::mutex making;

constinit std::atomic<Wanted*> latestWanted{nullptr};

// Under the lock.
Wanted& want(std::span<const std::string> identifiers) {
  std::vector<icu::Locale> languages;
  for (const std::string& identifier : identifiers) {
    // Anything may be asked for; a name that is none is passed over.
    const std::string canonical = port::localeIdentifier(identifier);
    if (!canonical.empty()) languages.emplace_back(canonical.c_str());
  }
  // Texts are asked for up to the very end of the process, from the destructors of static objects too.
  static port::NeverDestroyed<std::forward_list<Wanted>> all;
  Wanted& fresh = all->emplace_front();
  fresh.languages = std::move(languages);
  latestWanted.store(&fresh, std::memory_order_release);
  return fresh;
}

Wanted& current() {
  if (Wanted* list = latestWanted.load(std::memory_order_acquire)) return *list;
  const std::lock_guard lock(making);
  if (Wanted* list = latestWanted.load(std::memory_order_acquire)) return *list;
  return want(port::textLocales());
}

icu::Locale localeOf(std::string_view language) {
  UErrorCode status = U_ZERO_ERROR;
  return icu::Locale::forLanguageTag({language.data(), static_cast<std::int32_t>(language.size())}, status);
}

/// The table whose language serves the wanted ones best; null when none of them does.
const StringTable* bestOf(const std::vector<const StringTable*>& tables, const std::vector<icu::Locale>& languages) {
  using Locales = icu::Locale::RangeIterator<std::vector<icu::Locale>::const_iterator>;
  std::vector<icu::Locale> supported;
  for (const StringTable* table : tables) supported.push_back(localeOf(table->language));
  UErrorCode status = U_ZERO_ERROR;
  Locales offered(supported.begin(), supported.end());
  Locales desired(languages.begin(), languages.end());
  const auto matcher = icu::LocaleMatcher::Builder().setSupportedLocales(offered).setNoDefaultLocale().build(status);
  const std::int32_t best = matcher.getBestMatchResult(desired, status).getSupportedIndex();
  return U_FAILURE(status) || best < 0 ? nullptr : tables[static_cast<std::size_t>(best)];
}

Texts textsIn(const ResourceBundle& bundle, const std::vector<const StringTable*>& tables,
              const std::vector<icu::Locale>& languages) {
  Texts texts;
  if (const StringTable* best = bestOf(tables, languages)) texts.add(*best);
  for (const StringTable* table : tables) {
    if (table->language == bundle.developmentLanguage) texts.add(*table);
  }
  return texts;
}

[[gnu::always_inline]] inline const Choice* findChoice(const Wanted& list, const ResourceBundle& bundle,
                                                       std::string_view table) {
  const Choice* choice = list.latest.load(std::memory_order_acquire);
  while (choice != nullptr && (choice->bundle != &bundle || !internal::sameText(choice->table, table)))
    choice = choice->earlier;
  return choice;
}

const Choice* makeChoice(Wanted& list, const ResourceBundle& bundle, std::string_view name) {
  std::vector<const StringTable*> tables;
  for (const StringTable& table : bundle.tables) {
    if (table.name == name) tables.push_back(&table);
  }
  if (tables.empty()) return nullptr;
  const std::lock_guard lock(making);
  if (const Choice* made = findChoice(list, bundle, name)) return made;
  const Choice* earlier = list.latest.load(std::memory_order_relaxed);
  const Choice& choice = list.choices.emplace_front(
      Choice{&bundle, tables.front()->name, textsIn(bundle, tables, list.languages), earlier});
  list.latest.store(&choice, std::memory_order_release);
  return &choice;
}

}  // namespace

const Texts* textsFor(const ResourceBundle& bundle, std::string_view table) {
  Wanted& list = current();
  const Choice* choice = findChoice(list, bundle, table);
  if (choice == nullptr) choice = makeChoice(list, bundle, table);
  return choice != nullptr ? &choice->texts : nullptr;
}

void setLanguages(std::span<const std::string> identifiers) {
  const std::lock_guard lock(making);
  want(identifiers);
}

}  // namespace kzm::localization
