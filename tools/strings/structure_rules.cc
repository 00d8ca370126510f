// Which rows a table has.
#include <algorithm>
#include <set>

#include "tools/strings/allowed.h"
#include "tools/strings/key.h"
#include "tools/strings/rules.h"

namespace kzm::strings {
namespace {

// The sources that are not a translator's name: docs/languages.md says what they are.
constexpr std::string_view kSources[] = {"CLDR 42", "CLDR 41 names", "libgweather 4.2", "symbol", "own"};

bool isKnownSource(std::string_view source) {
  return std::ranges::find(kSources, source) != std::end(kSources) || source.starts_with("translator ");
}

void checkNotes(const Table& table, Report& report) {
  if (table.note.source.empty() || table.note.reviewer.empty()) {
    report.add(1, "the head does not say \"source: ...; reviewer: ...\"");
  }
  if (!table.note.source.empty() && !isKnownSource(table.note.source)) {
    report.add(1, "unknown source " + inQuotes(table.note.source));
  }
  for (const Entry& entry : table.entries) {
    const std::string& source = entry.note.source;
    if (!source.empty() && !isKnownSource(source)) report.add(entry, "unknown source " + inQuotes(source));
    if (noteOf(table, entry).source == "symbol" && !isSymbol(unitOf(entry.text))) {
      report.add(entry, inQuotes(entry.text) + " is no international symbol");
    }
    if (!source.empty() && source == table.note.source) report.add(entry, "the head says the source already");
  }
}

void checkForm(const Table& table, Report& report) {
  std::set<std::string_view> keys;
  for (const Entry& entry : table.entries) {
    if (!keys.insert(entry.key).second) report.add(entry, inQuotes(entry.key) + " is there twice");
    if (!parseKey(entry.key)) {
      report.add(entry, "the key " + inQuotes(entry.key) +
                            " is not \"Units.<family>.<template>\" or \"Words.<family>.<word>\"");
    }
  }
}

/// In the development language a text is its key's template, so that code and table cannot drift apart.
void checkDevelopment(const Table& table, Report& report) {
  if (table.entries.empty()) report.add(1, "no entries");
  for (const Entry& entry : table.entries) {
    const auto key = parseKey(entry.key);
    if (key && entry.text != key->pattern) {
      report.add(entry, "the text of " + inQuotes(entry.key) + " is not the template that the key ends in");
    }
  }
}

/// A word that a language lacks is shown in English; a unit is not, for no text may have two languages.
void checkMissing(const Table& table, const Table& development, Report& report) {
  if (table.name == kWordTable) return;
  const std::size_t last = table.entries.empty() ? 1 : table.entries.back().line;
  for (const Entry& entry : development.entries) {
    if (table.find(entry.key) == nullptr) report.add(last, "the key " + inQuotes(entry.key) + " is missing");
  }
}

/// Rows are in the order of the development language; `expected` passes over those that a layer need not have.
void checkOrder(const Table& table, const Table& development, Report& report) {
  auto expected = development.entries.begin();
  for (const Entry& entry : table.entries) {
    const Entry* known = development.find(entry.key);
    if (known == nullptr) {
      report.add(entry, "unknown key " + inQuotes(entry.key));
    } else if (&*expected > known) {
      report.add(entry, inQuotes(entry.key) + " is out of order");
    } else {
      expected = development.entries.begin() + (known - development.entries.data());
    }
  }
}

void checkLayer(const Table& table, const Table& parent, Report& report) {
  if (table.entries.empty()) report.add(1, "no row differs from " + parent.language);
  for (const Entry& entry : table.entries) {
    const Entry* above = parent.find(entry.key);
    if (above != nullptr && above->text == entry.text) {
      report.add(entry, "the text of " + inQuotes(entry.key) + " is the same in " + parent.language);
    }
  }
}

}  // namespace

void checkStructure(const Catalog& catalog, const Table& table, Report& report) {
  if (catalog.find(table.language, table.name) != &table) report.add(0, "a second table of this language and name");
  const Table* development = catalog.development(table);
  if (development == nullptr) {
    report.add(0, "there is no such table in " + std::string(kDevelopmentLanguage));
    return;
  }
  checkForm(table, report);
  checkNotes(table, report);
  if (&table == development) return checkDevelopment(table, report);
  checkOrder(table, *development, report);
  if (!withoutRegion(table.language)) return checkMissing(table, *development, report);
  const Table* parent = catalog.parent(table);
  if (parent == nullptr) {
    report.add(1, "a layer, but there is no table for " + *withoutRegion(table.language));
  } else {
    checkLayer(table, completed(catalog, *parent), report);
  }
}

Faults structureFaults(const Catalog& catalog) {
  Faults faults;
  for (const Table& table : catalog.tables) {
    Report report(table);
    checkStructure(catalog, table, report);
    faults.insert(faults.end(), report.faults().begin(), report.faults().end());
  }
  return faults;
}

}  // namespace kzm::strings
