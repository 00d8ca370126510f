// What each text must be on its own, as far as plain bytes show.
#include <algorithm>

#include "tools/strings/allowed.h"
#include "tools/strings/key.h"
#include "tools/strings/rules.h"

namespace kzm::strings {
namespace {

// Hosts isolate readings; a mark inside one would turn up in copies of it and in searches.
constexpr std::string_view kDirectionMarks[] = {"\u061C", "\u200E", "\u200F", "\u202A", "\u202B", "\u202C",
                                                "\u202D", "\u202E", "\u2066", "\u2067", "\u2068", "\u2069"};

constexpr std::string_view kFamilyThatIsStripped = "Sensors";
constexpr std::string_view kStripped = ".,";

bool contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

void checkEntrySlots(const Entry& entry, std::string_view pattern, Report& report) {
  if (entry.text.empty()) report.add(entry, "the text of " + inQuotes(entry.key) + " is empty");
  const auto isIn = [&](std::string_view prefix) { return contains(entry.text, prefix); };
  if (std::ranges::any_of(kPrefixes, isIn)) report.add(entry, "a key's prefix in the text of " + inQuotes(entry.key));
  const auto slots = slotsOf(entry.text);
  if (!slots) {
    report.add(entry, "a \"%\" other than %@ and %% in the text of " + inQuotes(entry.key));
  } else if (!entry.text.empty() && slots != slotsOf(pattern)) {
    report.add(entry, "the text of " + inQuotes(entry.key) + " has other slots than its key");
  }
}

void checkMarks(const Entry& entry, Report& report) {
  const auto isIn = [&](std::string_view mark) { return contains(entry.text, mark); };
  if (std::ranges::any_of(kDirectionMarks, isIn)) {
    report.add(entry, "a mark of direction in the text of " + inQuotes(entry.key));
  }
}

void checkStops(const Entry& entry, const Key& key, Report& report) {
  if (key.family != kFamilyThatIsStripped || entry.text.find_first_of(kStripped) == std::string::npos) return;
  report.add(entry, inQuotes(entry.text) + " has a full stop or comma, which the option \"strip\" removes");
}

void checkTranslated(const Table& table, const Entry& entry, const Key& key, Report& report) {
  if (entry.text != key.pattern || mayEqualEnglish(table.language, unitOf(key.pattern))) return;
  report.add(entry, inQuotes(entry.text) + " is English");
}

}  // namespace

void checkSlots(const Table& table, Report& report) {
  for (const Entry& entry : table.entries) checkEntrySlots(entry, parseKey(entry.key)->pattern, report);
}

void checkTexts(const Table& table, Report& report) {
  const bool isEnglish = table.language == kDevelopmentLanguage;
  for (const Entry& entry : table.entries) {
    const Key key = *parseKey(entry.key);
    checkMarks(entry, report);
    checkStops(entry, key, report);
    if (!isEnglish) checkTranslated(table, entry, key, report);
  }
}

Faults plainFaults(const Catalog& catalog) {
  Faults faults;
  for (const Table& table : catalog.tables) {
    Report report(table);
    checkStructure(catalog, table, report);
    const bool isSound = report.faults().empty();
    const Table whole = isSound ? completed(catalog, table) : table;
    if (isSound) checkSlots(whole, report);
    if (report.faults().empty()) {
      checkWording(whole, report);
      checkTexts(whole, report);
    }
    faults.insert(faults.end(), report.faults().begin(), report.faults().end());
  }
  return faults;
}

}  // namespace kzm::strings
