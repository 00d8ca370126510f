#include "cli/languages/coverage.h"

#include <algorithm>
#include <span>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/resources.h>

namespace kzm::cli {
namespace {

constexpr std::string_view kUnits = "KZMUtilities";
constexpr std::string_view kWords = "Words";

std::string nameOf(std::string_view language) {
  UErrorCode status = U_ZERO_ERROR;
  const auto locale =
      icu::Locale::forLanguageTag({language.data(), static_cast<std::int32_t>(language.size())}, status);
  icu::UnicodeString name;
  std::string utf8;
  return locale.getDisplayName(locale, name).toUTF8String(utf8);
}

/// How many texts the language has in the tables of the name: its own table, which is complete, or that of the longest
/// tag that it begins with.
std::size_t countTexts(std::span<const StringTable> tables, std::string_view language, std::string_view name) {
  for (;;) {
    const auto table = std::ranges::find_if(
        tables, [&](const StringTable& each) { return each.language == language && each.name == name; });
    if (table != tables.end()) return static_cast<std::size_t>(std::ranges::count(table->texts, '\0'));
    const std::size_t last = language.rfind('-');
    if (last == std::string_view::npos) return 0;
    language = language.substr(0, last);
  }
}

}  // namespace

std::vector<Coverage> coverages() {
  const std::span<const StringTable> tables = bundleWithIdentifier(kBundleIdentifier)->tables;
  std::vector<Coverage> all;
  for (const StringTable& table : tables) {
    if (table.name != kUnits) continue;
    const std::string_view language = table.language;
    all.push_back(
        {language, nameOf(language), countTexts(tables, language, kUnits), countTexts(tables, language, kWords)});
  }
  std::ranges::sort(all, {}, &Coverage::language);
  return all;
}

}  // namespace kzm::cli
