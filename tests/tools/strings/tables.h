// String tables made of rows, and what the rules say of them.
#ifndef KZM_TESTS_TOOLS_STRINGS_TABLES_H
#define KZM_TESTS_TOOLS_STRINGS_TABLES_H

#include <string>
#include <utility>
#include <vector>

#include "tools/strings/catalog.h"
#include "tools/strings/key.h"
#include "tools/strings/rules.h"
#include "tools/strings/unicode_rules.h"

namespace kzm::strings::tests {

struct Row {
  std::string key;
  std::string text;
};
using Rows = std::vector<Row>;

inline constexpr const char* kHead = "/* source: own; reviewer: none */\n";

/// The table of a language: the head on line 1, a row on each line that follows.
inline Table table(const std::string& language, const Rows& rows, const std::string& name = "T") {
  std::string content = kHead;
  for (const Row& row : rows) content += literalOf(row.key) + " = " + literalOf(row.text) + ";\n";
  return parseTable(language + ".lproj/" + name + ".strings", content);
}

/// The English rows of the same keys.
inline Rows english(Rows rows) {
  for (Row& row : rows) row.text = parseKey(row.key)->pattern;
  return rows;
}

/// A catalog of English, which has all keys of the rows, and of the language with these rows.
inline Catalog catalog(const std::string& language, const Rows& rows) {
  return {{table("en", english(rows)), table(language, rows)}};
}

/// The faults, each as "line: what", one below the other.
inline std::string lines(const Faults& faults) {
  std::string text;
  for (const Fault& fault : faults) {
    text += (text.empty() ? "" : "\n") + std::to_string(fault.line) + ": " + fault.what;
  }
  return text;
}

/// What the rules find in a table of these rows; those of Unicode data if the others find nothing.
inline std::string faultsIn(const std::string& language, const Rows& rows) {
  const Catalog tables = catalog(language, rows);
  const Faults plain = plainFaults(tables);
  return lines(plain.empty() ? unicodeFaults(tables.tables[1]) : plain);
}

}  // namespace kzm::strings::tests

#endif
