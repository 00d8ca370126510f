#include "port/environment_locale.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <unicode/localebuilder.h>
#include <unicode/locid.h>
#include <unicode/uenum.h>
#include <unicode/uloc.h>

#include "port/ascii.h"
#include "port/canonical_locale.h"
#include "port/locale_form.h"
#include "port/memory_watch.h"

namespace kzm::port {
namespace {

// POSIX modifiers that say something which an identifier can carry; "@euro" and its like are history.
struct Modifier {
  std::string_view name;
  std::string_view script;
  std::string_view variant;
};
// clang-format off
constexpr Modifier kModifiers[] = {
    {"latin",      "Latn", ""        },
    {"cyrillic",   "Cyrl", ""        },
    {"devanagari", "Deva", ""        },
    {"iqtelif",    "Latn", ""        },
    {"valencia",   "",     "VALENCIA"},
};
// clang-format on

constexpr bool isKeywordCharacter(char c) {
  return isAlphanumeric(c) || std::string_view("=;_-+/").find(c) != std::string_view::npos;
}

std::string joined(std::string_view language, std::string_view script, std::string_view region,
                   std::string_view variant) {
  std::string identifier(language);
  if (!script.empty()) identifier.append("_").append(script);
  // A variant without a region before it leaves the region's place empty: "ca__VALENCIA".
  if (!region.empty() || !variant.empty()) identifier.append("_").append(region);
  if (!variant.empty()) identifier.append("_").append(variant);
  return identifier;
}

std::string withModifier(const icu::Locale& locale, std::string_view name) {
  const auto* modifier = std::ranges::find(kModifiers, name, &Modifier::name);
  if (modifier == std::end(kModifiers)) return locale.getName();
  return joined(locale.getLanguage(), modifier->script.empty() ? locale.getScript() : modifier->script,
                locale.getCountry(), modifier->variant.empty() ? locale.getVariant() : modifier->variant);
}

std::string canonicalName(const std::string& name) {
  const icu::Locale locale = canonicalLocale(name);
  // The undetermined language, "und", has become an empty one.
  return locale.isBogus() || *locale.getLanguage() == '\0' ? std::string() : locale.getName();
}

// Whether that holds for one of the locales that ICU has data for.
template <typename Predicate>
bool holdsForAnyName(Predicate predicate) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUEnumerationPointer names(uloc_openAvailableByType(ULOC_AVAILABLE_WITH_LEGACY_ALIASES, &status));
  bool holds = false;
  for (const char* name = nullptr; !holds && (name = uenum_next(names.getAlias(), nullptr, &status)) != nullptr;) {
    holds = predicate(name);
  }
  demandMemory(status);
  return holds;
}

// Asked of ICU's list, not by opening the language's data: with fallback every name would be found, in the data of the
// process's own locale; without it ICU would keep a bundle that has lost its parents ("nb" that of "no") for everybody.
bool isLanguageKnown(const icu::Locale& locale) {
  const std::string_view language = locale.getLanguage();
  return holdsForAnyName([&](const char* name) { return language == std::string_view(name, std::strcspn(name, "_")); });
}

// Whether ICU has data for the language in the script that the locale names, if it names one.
bool isScriptKnown(const icu::Locale& locale) {
  const std::string script = locale.getScript();
  return script.empty() || holdsForAnyName([&](const char* name) {
           const icu::Locale available(name);
           return std::strcmp(available.getLanguage(), locale.getLanguage()) == 0 &&
                  inFull(available).getScript() == script;
         });
}

std::string withoutScript(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale changed = icu::LocaleBuilder().setLocale(locale).setScript({}).build(status);
  demandMemory(status);
  return U_FAILURE(status) ? locale.getLanguage() : changed.getName();
}

// The name of no language, with a codeset or without.
bool isPlain(std::string_view name) {
  const std::string_view head = name.substr(0, name.find_first_of(".@"));
  return name.empty() || head == "C" || head == "POSIX";
}

// Where gettext too translates nothing. C.UTF-8 is a locale like others to it.
bool isUntranslated(std::string_view name) {
  return isPlain(name) && name.find_first_of(".@") == std::string_view::npos;
}

std::string_view valueOf(const Environment& environment, const char* name) {
  const char* value = environment(name);
  return value == nullptr ? std::string_view() : std::string_view(value);
}

std::string_view firstSet(const Environment& environment, const char* category) {
  for (const char* name : {"LC_ALL", category, "LANG"}) {
    const std::string_view value = valueOf(environment, name);
    if (!value.empty()) return value;
  }
  return {};
}

void append(std::vector<std::string>& identifiers, std::string_view name) {
  std::string identifier = localeIdentifier(name);
  if (!identifier.empty()) identifiers.push_back(std::move(identifier));
}

std::string identifierOf(std::string_view name) {
  if (isPlain(name) || name.size() > kLongestIdentifier) return {};
  const std::size_t at = name.find('@');
  const std::string head(name.substr(0, std::min(name.find('.'), at)));
  if (!isLocaleHead(head)) return {};
  const std::string_view modifier = at == std::string_view::npos ? std::string_view() : name.substr(at + 1);
  if (modifier.find('=') == std::string_view::npos) return canonicalName(withModifier(canonicalLocale(head), modifier));
  if (!std::ranges::all_of(modifier, isKeywordCharacter)) return {};
  return canonicalName(head + "@" + std::string(modifier));
}

std::string usableOf(std::string_view name) {
  std::string identifier = identifierOf(name);
  if (identifier.empty()) return std::string(kFallbackLocale);
  const icu::Locale locale = canonicalLocale(identifier);
  if (!isLanguageKnown(locale)) return std::string(kFallbackLocale);
  return isScriptKnown(locale) ? identifier : withoutScript(locale);
}

}  // namespace

std::string localeIdentifier(std::string_view name) {
  const MemoryWatch memory;
  std::string identifier = identifierOf(name);
  memory.demand();
  return identifier;
}

std::string usableLocale(std::string_view name) {
  const MemoryWatch memory;
  std::string identifier = usableOf(name);
  memory.demand();
  return identifier;
}

std::string numberLocale(const Environment& environment) { return usableLocale(firstSet(environment, "LC_NUMERIC")); }

std::string measurementLocale(const Environment& environment) {
  return usableLocale(firstSet(environment, "LC_MEASUREMENT"));
}

std::string dateLocale(const Environment& environment) { return usableLocale(firstSet(environment, "LC_TIME")); }

std::vector<std::string> textLocales(const Environment& environment) {
  std::vector<std::string> identifiers;
  const std::string_view message = firstSet(environment, "LC_MESSAGES");
  if (isUntranslated(message)) return identifiers;
  std::string_view list = valueOf(environment, "LANGUAGE");
  while (!list.empty()) {
    const std::string_view entry = list.substr(0, list.find(':'));
    list.remove_prefix(std::min(list.size(), entry.size() + 1));
    if (!entry.empty() && isPlain(entry)) {
      identifiers.emplace_back("en");
      return identifiers;
    }
    append(identifiers, entry);
  }
  append(identifiers, message);
  return identifiers;
}

}  // namespace kzm::port
