// What is checked in every string table.
#ifndef TOOLS_STRINGS_RULES_H
#define TOOLS_STRINGS_RULES_H

#include <string>
#include <string_view>
#include <utility>

#include "tools/strings/catalog.h"

namespace kzm::strings {

/// A key or a text within a message.
[[nodiscard]] inline std::string inQuotes(std::string_view text) { return '"' + std::string(text) + '"'; }

/// The faults found in one table. Those of rows that a layer has from its parent are the parent's.
class Report {
 public:
  explicit Report(const Table& table) : path_(table.path) {}

  void add(const Entry& entry, std::string what) {
    if (!entry.isInherited) faults_.push_back({path_, entry.line, std::move(what)});
  }
  /// A fault between two rows is the later one's, or the one's that is not inherited.
  void add(const Entry& first, const Entry& second, std::string what) {
    add(second.isInherited ? first : second, std::move(what));
  }
  void add(std::size_t line, std::string what) { faults_.push_back({path_, line, std::move(what)}); }

  [[nodiscard]] const Faults& faults() const { return faults_; }

 private:
  std::string path_;
  Faults faults_;
};

/// Which rows there are, in which order, what they say of their source, and what a layer may hold.
void checkStructure(const Catalog& catalog, const Table& table, Report& report);

/// That the library can fill every text in. The table is completed, as for all that follow.
void checkSlots(const Table& table, Report& report);

/// How the texts of a table go together: spaces, twins, units that must differ, units that must not.
void checkWording(const Table& table, Report& report);

/// That words are translated and texts can be read and cut as the library does.
void checkTexts(const Table& table, Report& report);

/// The faults of structure of all tables: without these, every key can be taken apart and has a text.
[[nodiscard]] Faults structureFaults(const Catalog& catalog);

/// All rules that need no Unicode data, for all tables; the rules that build on others follow those that hold.
[[nodiscard]] Faults plainFaults(const Catalog& catalog);

}  // namespace kzm::strings

#endif
