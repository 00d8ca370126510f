// What Unicode's unit data say of the texts: facts to compare with, never the last word.
#ifndef TOOLS_STRINGS_OPEN_DATA_H
#define TOOLS_STRINGS_OPEN_DATA_H

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "tools/strings/rules.h"

namespace kzm::strings {

/// Compares the texts of one language with the unit data of ICU.
class OpenData {
 public:
  explicit OpenData(std::string language) : language_(std::move(language)) {}

  /// Whether the text is one that the data have, in their short or narrow form; nothing when they have none for the
  /// key. The prefix of kilobytes may be a capital, as it is in all tables.
  [[nodiscard]] std::optional<bool> agrees(const Entry& entry) const;

 private:
  [[nodiscard]] const std::set<std::string>& patternsOf(const char* identifier) const;

  std::string language_;
  mutable std::map<std::string, std::set<std::string>> patterns_;  // by Unicode's unit, since making them takes long
};

/// That the texts whose source is CLDR are in its data, as far as this ICU has the version that the source names.
void checkSources(const Table& table, Report& report);

}  // namespace kzm::strings

#endif
