#include "localization/choice.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <unicode/localematcher.h>
#include <vector>

#include "port/environment_locale.h"

namespace kzm::localization {
namespace {

/// A choice in the chain of those made for one list of languages. The chain only ever grows, at its head.
struct Link {
  Choice choice;
  const Link* next;
};

/// A list of wanted languages with the choices made for it. Lists that were replaced stay where they are, since a
/// reader may still be inside; they stay reachable through the one that followed.
struct Wanted {
  std::vector<icu::Locale> languages;
  std::atomic<const Link*> choices{nullptr};
  const Wanted* replaced = nullptr;
};

// Never destroyed: texts are asked for up to the very end of the process, from the destructors of static objects too.
constinit std::atomic<Wanted*> gWanted{nullptr};

// Held while something is made or replaced; what is there is read without it.
constinit std::mutex gMaking;

std::unique_ptr<Wanted> wanted(std::span<const std::string> identifiers) {
  auto list = std::make_unique<Wanted>();
  for (const std::string& identifier : identifiers) {
    // Anything may be asked for; a name that is none is passed over.
    const std::string canonical = port::localeIdentifier(identifier);
    if (!canonical.empty()) list->languages.emplace_back(canonical.c_str());
  }
  return list;
}

Wanted& current() {
  if (Wanted* list = gWanted.load(std::memory_order_acquire)) return *list;
  const std::lock_guard lock(gMaking);
  if (Wanted* list = gWanted.load(std::memory_order_acquire)) return *list;
  Wanted* fresh = wanted(port::textLocales()).release();
  gWanted.store(fresh, std::memory_order_release);
  return *fresh;
}

std::vector<const StringTable*> tablesNamed(const ResourceBundle& bundle, std::string_view name) {
  std::vector<const StringTable*> tables;
  for (const StringTable& table : bundle.tables) {
    if (table.name == name) tables.push_back(&table);
  }
  return tables;
}

icu::Locale localeOf(std::string_view language) {
  UErrorCode status = U_ZERO_ERROR;
  return icu::Locale::forLanguageTag({language.data(), static_cast<std::int32_t>(language.size())}, status);
}

/// The index of the language that serves the wanted ones best; -1 when it serves none of them.
std::int32_t bestOf(const std::vector<icu::Locale>& supported, const std::vector<icu::Locale>& languages) {
  using Locales = icu::Locale::RangeIterator<std::vector<icu::Locale>::const_iterator>;
  UErrorCode status = U_ZERO_ERROR;
  Locales offered(supported.begin(), supported.end());
  Locales desired(languages.begin(), languages.end());
  const auto matcher = icu::LocaleMatcher::Builder().setSupportedLocales(offered).setNoDefaultLocale().build(status);
  const auto result = matcher.getBestMatchResult(desired, status);
  return U_FAILURE(status) ? -1 : result.getSupportedIndex();
}

Choice choose(const ResourceBundle& bundle, const std::vector<const StringTable*>& tables,
              const std::vector<icu::Locale>& languages) {
  // The name is the table's own: the one that was asked for may be gone after the call.
  Choice choice{&bundle, tables.front()->name, {}, {}};
  std::vector<icu::Locale> supported;
  for (const StringTable* table : tables) {
    supported.push_back(localeOf(table->language));
    if (table->language == bundle.developmentLanguage) choice.developmentTexts = table->texts;
  }
  const std::int32_t best = bestOf(supported, languages);
  choice.texts = best < 0 ? choice.developmentTexts : tables[static_cast<std::size_t>(best)]->texts;
  return choice;
}

const Choice* findChoice(const Wanted& list, const ResourceBundle& bundle, std::string_view table) {
  const Link* link = list.choices.load(std::memory_order_acquire);
  while (link != nullptr && (link->choice.bundle != &bundle || link->choice.table != table)) link = link->next;
  return link == nullptr ? nullptr : &link->choice;
}

const Choice* addChoice(Wanted& list, const Choice& choice) {
  const Link* link = new Link{choice, list.choices.load(std::memory_order_acquire)};
  list.choices.store(link, std::memory_order_release);
  return &link->choice;
}

const Choice* makeChoice(Wanted& list, const ResourceBundle& bundle, std::string_view table) {
  const std::vector<const StringTable*> tables = tablesNamed(bundle, table);
  if (tables.empty()) return nullptr;
  const std::lock_guard lock(gMaking);
  const Choice* made = findChoice(list, bundle, table);
  return made != nullptr ? made : addChoice(list, choose(bundle, tables, list.languages));
}

}  // namespace

const Choice* choiceFor(const ResourceBundle& bundle, std::string_view table) {
  Wanted& list = current();
  const Choice* made = findChoice(list, bundle, table);
  return made != nullptr ? made : makeChoice(list, bundle, table);
}

void setLanguages(std::span<const std::string> identifiers) {
  const std::lock_guard lock(gMaking);
  std::unique_ptr<Wanted> fresh = wanted(identifiers);
  fresh->replaced = gWanted.load(std::memory_order_acquire);
  gWanted.store(fresh.release(), std::memory_order_release);
}

}  // namespace kzm::localization
