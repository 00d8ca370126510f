#include "localization/choice.h"

#include <atomic>
#include <cstddef>
#include <forward_list>
#include <mutex>
#include <optional>
#include <set>
#include <unicode/localebuilder.h>
#include <unicode/localematcher.h>
#include <vector>

#include <KZMUtilities/key.h>

#include "port/canonical_locale.h"
#include "port/environment_locale.h"
#include "port/memory_watch.h"
#include "port/never_destroyed.h"

namespace kzm::localization {
namespace {

// A table for which a language was chosen.
struct Choice {
  const ResourceBundle* bundle;
  std::string_view table;  // the table's own name: the one that was asked for may be gone after the call
  Texts texts;
  const Choice* earlier;
};

// Languages that are wanted, with the choices made for them. Neither lists that were replaced nor choices are ever
// removed: a reader may be inside.
struct Wanted {
  std::vector<icu::Locale> languages;
  std::forward_list<Choice> choices;
  std::atomic<const Choice*> latest{nullptr};
};

std::string scriptOf(const icu::Locale& locale) { return port::inFull(locale).getScript(); }

// The locale with the characters that its readers expect: where Chinese is written in traditional ones, in Taiwan,
// Hong Kong and Macau, so are the other Chinese languages.
icu::Locale asRead(const icu::Locale& locale) {
  if (*locale.getScript() != '\0' || scriptOf(locale) != "Hans") return locale;
  UErrorCode status = U_ZERO_ERROR;
  const std::string script = scriptOf(icu::Locale("zh", locale.getCountry()));
  const icu::Locale changed = icu::LocaleBuilder().setLocale(locale).setScript(script).build(status);
  port::demandMemory(status);
  return U_FAILURE(status) ? locale : changed;
}

// Held while something is made or replaced; what is there is read without it.
constinit std::mutex making;

constinit std::atomic<Wanted*> latestWanted{nullptr};

// Under the lock.
Wanted& want(std::span<const std::string> identifiers) {
  const port::MemoryWatch memory;
  std::vector<icu::Locale> languages;
  for (const std::string& identifier : identifiers) {
    // Anything may be asked for; a name that is none is passed over.
    const std::string canonical = port::localeIdentifier(identifier);
    if (!canonical.empty()) languages.push_back(asRead(icu::Locale(canonical.c_str())));
  }
  memory.demand();
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

struct Match {
  std::size_t desired;
  std::size_t offered;
};

std::optional<Match> match(const std::vector<icu::Locale>& desired, const std::vector<icu::Locale>& offered) {
  using Locales = icu::Locale::RangeIterator<std::vector<icu::Locale>::const_iterator>;
  const port::MemoryWatch memory;
  UErrorCode status = U_ZERO_ERROR;
  Locales supported(offered.begin(), offered.end());
  Locales wanted(desired.begin(), desired.end());
  const auto matcher = icu::LocaleMatcher::Builder().setSupportedLocales(supported).setNoDefaultLocale().build(status);
  const auto result = matcher.getBestMatchResult(wanted, status);
  memory.demand(status);
  if (U_FAILURE(status) || result.getSupportedIndex() < 0) return std::nullopt;
  return Match{static_cast<std::size_t>(result.getDesiredIndex()),
               static_cast<std::size_t>(result.getSupportedIndex())};
}

std::set<std::string> scriptsOf(const std::vector<icu::Locale>& languages) {
  std::set<std::string> scripts;
  for (const icu::Locale& language : languages) scripts.insert(scriptOf(language));
  return scripts;
}

// The table of this very language: that of "de" for "de_DE". The matcher would choose it too, but it reads all that it
// knows of languages first, which takes longer than everything else at the start of a program.
const StringTable* tableOf(const icu::Locale& language, const std::vector<const StringTable*>& tables) {
  const icu::Locale wanted = port::inFull(language);
  for (const StringTable* table : tables) {
    if (!table->language.starts_with(wanted.getLanguage())) continue;
    const icu::Locale offered = port::inFull(localeOf(table->language));
    const auto agree = [&](const char* (icu::Locale::*part)() const) {
      return std::string_view((wanted.*part)()) == (offered.*part)();
    };
    if (agree(&icu::Locale::getLanguage) && agree(&icu::Locale::getScript) && agree(&icu::Locale::getCountry))
      return table;
  }
  return nullptr;
}

// The table whose language serves the wanted ones best; null when none of them does. A nearest language serves only
// readers of its script: the matcher, left alone, gives Russian to readers of Latin letters.
const StringTable* bestOf(const std::vector<const StringTable*>& tables, std::vector<icu::Locale> languages) {
  while (!languages.empty()) {
    if (const StringTable* same = tableOf(languages.front(), tables)) return same;
    const std::set<std::string> scripts = scriptsOf(languages);
    std::vector<const StringTable*> readable;
    std::vector<icu::Locale> offered;
    for (const StringTable* table : tables) {
      const icu::Locale locale = localeOf(table->language);
      if (!scripts.contains(scriptOf(locale))) continue;
      readable.push_back(table);
      offered.push_back(locale);
    }
    const std::optional<Match> best = match(languages, offered);
    if (!best) return nullptr;
    if (scriptOf(languages[best->desired]) == scriptOf(offered[best->offered])) return readable[best->offered];
    languages.erase(languages.begin() + static_cast<std::ptrdiff_t>(best->desired));
  }
  return nullptr;
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
