// How the texts of one table go together.
#include <algorithm>
#include <optional>
#include <vector>

#include "tools/strings/key.h"
#include "tools/strings/rules.h"

namespace kzm::strings {
namespace {

struct Row {
  const Entry* entry;
  Key key;
  std::string unit;      // of the key
  std::string textUnit;  // of the text
  bool isSpaced;         // the key
};

std::vector<Row> rowsOf(const Table& table) {
  std::vector<Row> rows;
  for (const Entry& entry : table.entries) {
    const auto key = parseKey(entry.key);
    if (!key) continue;
    rows.push_back({&entry, *key, unitOf(key->pattern), unitOf(entry.text), isSpaced(key->pattern)});
  }
  return rows;
}

std::string inQuotes(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string both(const Row& first, const Row& second) {
  return inQuotes(second.entry->key) + " and " + inQuotes(first.entry->key);
}

// Spaces --------------------------------------------------------------------------------------------------------------

/// A percent sign has no space or a no-break one, as the language has it; before any other unit the key decides.
void checkSpaces(const Row& row, Report& report) {
  const std::string& text = row.entry->text;
  const Parts parts = partsOf(text);
  if (text.starts_with(' ') || text.ends_with(' ')) report.add(*row.entry, "a space at the end of " + inQuotes(text));
  if (text.find("  ") != std::string::npos) report.add(*row.entry, "two spaces in " + inQuotes(text));
  if (!parts.hasNumber) return;
  const bool isPercent = slotsOf(row.key.pattern)->percents > 0;
  const bool hasPlainSpace = parts.before.ends_with(' ') || parts.after.starts_with(' ');
  if (!parts.before.empty() && !parts.after.empty()) {
    report.add(*row.entry, "the unit is on both sides of the number in " + inQuotes(text));
  } else if (hasPlainSpace != (row.isSpaced && !isPercent)) {
    report.add(*row.entry, inQuotes(text) + (hasPlainSpace ? " has a space that" : " lacks the space that") +
                               " its key " + (hasPlainSpace ? "lacks" : "has"));
  } else if (isSpaced(text) && !row.isSpaced && !isPercent) {
    report.add(*row.entry, inQuotes(text) + " has a space that its key lacks");
  }
}

/// The text as it is without the space beside its number.
std::string tight(std::string_view text) {
  const Parts parts = partsOf(text);
  std::string closed(parts.before.substr(0, parts.before.find_last_not_of(' ') + 1));
  closed += kNumber;
  return closed += parts.after.substr(std::min(parts.after.find_first_not_of(' '), parts.after.size()));
}

/// The row of the same unit that has no space.
const Row* twinOf(const Row& spaced, const std::vector<Row>& rows) {
  if (!spaced.isSpaced) return nullptr;
  const auto twin = std::ranges::find_if(rows, [&](const Row& row) {
    return row.key.family == spaced.key.family && row.unit == spaced.unit && !row.isSpaced;
  });
  return twin == rows.end() ? nullptr : &*twin;
}

void checkTwins(const std::vector<Row>& rows, Report& report) {
  for (const Row& row : rows) {
    const Row* twin = twinOf(row, rows);
    if (twin != nullptr && twin->entry->text != tight(row.entry->text)) {
      report.add(*row.entry, *twin->entry, both(row, *twin) + " differ in more than the space");
    }
  }
}

// Units ---------------------------------------------------------------------------------------------------------------

// Two names of one unit.
constexpr std::string_view kAliases[] = {"Lx", "Lux"};

bool areAliases(const Row& first, const Row& second) {
  const auto isAlias = [](const Row& row) { return std::ranges::find(kAliases, row.unit) != std::end(kAliases); };
  return isAlias(first) && isAlias(second);
}

/// Above all, bits must not read like bytes.
void checkDifferent(const std::vector<Row>& rows, Report& report) {
  for (auto second = rows.begin(); second != rows.end(); ++second) {
    for (auto first = rows.begin(); first != second; ++first) {
      if (first->key.family != second->key.family || first->isSpaced != second->isSpaced) continue;
      if (first->entry->text != second->entry->text || areAliases(*first, *second)) continue;
      report.add(*first->entry, *second->entry, both(*first, *second) + " read the same");
    }
  }
}

// Families whose units are the same where their patterns are.
struct Kind {
  std::string_view family;
  std::string_view name;
};
constexpr Kind kKinds[] = {
    {"Network", "bytes"}, {"Activity", "bytes"},  {"Space", "bytes"},
    {"Memory", "bytes"},  {"Sensors", "physics"}, {"Weather", "physics"},
};

std::string_view kindOf(const Row& row) {
  const auto found = std::ranges::find(kKinds, row.key.family, &Kind::family);
  return found == std::end(kKinds) ? row.key.family : found->name;
}

void checkOneSpelling(const std::vector<Row>& rows, Report& report) {
  for (auto second = rows.begin(); second != rows.end(); ++second) {
    const auto first = std::find_if(rows.begin(), second, [&](const Row& row) {
      return row.key.pattern == second->key.pattern && kindOf(row) == kindOf(*second);
    });
    if (first == second || first->entry->text == second->entry->text) continue;
    report.add(*first->entry, *second->entry, both(*first, *second) + " are one unit spelled two ways");
  }
}

// Seconds -------------------------------------------------------------------------------------------------------------

constexpr std::string_view kPerSecond = "/s";

/// What a rate says for "per second"; nothing when it is not the same unit without time, then a slash and a word.
std::optional<std::string_view> secondsOf(const Row& rate, const std::vector<Row>& rows) {
  const std::string_view unit = std::string_view(rate.unit).substr(0, rate.unit.size() - kPerSecond.size());
  const std::string_view text = rate.textUnit;
  const auto amount = std::ranges::find_if(rows, [&](const Row& row) {
    return row.key.family == rate.key.family && row.unit == unit && row.isSpaced == rate.isSpaced;
  });
  const std::size_t slash = text.rfind('/');
  if (slash == std::string_view::npos) return std::nullopt;
  if (amount != rows.end() && amount->textUnit != text.substr(0, slash)) return std::nullopt;
  return text.substr(slash);
}

void checkSeconds(const std::vector<Row>& rows, Report& report) {
  const Row* first = nullptr;
  for (const Row& row : rows) {
    if (!row.unit.ends_with(kPerSecond)) continue;
    if (first == nullptr) first = &row;
    const auto seconds = secondsOf(row, rows);
    if (!seconds) {
      report.add(*row.entry, inQuotes(row.entry->text) + " is not the unit without time, a slash and the second");
    } else if (seconds != secondsOf(*first, rows)) {
      report.add(*first->entry, *row.entry, both(*first, row) + " write the second in two ways");
    }
  }
}

}  // namespace

void checkWording(const Table& table, Report& report) {
  const std::vector<Row> rows = rowsOf(table);
  for (const Row& row : rows) checkSpaces(row, report);
  checkTwins(rows, report);
  checkDifferent(rows, report);
  checkOneSpelling(rows, report);
  checkSeconds(rows, report);
}

}  // namespace kzm::strings
