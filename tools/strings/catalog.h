// All string tables, and which of them are layers: a table whose language tag ends in a region holds only the rows that
// differ from the table without that region. "pt-PT" is a layer over "pt", "zh-Hant-HK" one over "zh-Hant".
#ifndef TOOLS_STRINGS_CATALOG_H
#define TOOLS_STRINGS_CATALOG_H

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/strings/table.h"

namespace kzm::strings {

inline constexpr std::string_view kDevelopmentLanguage = "en";

/// The tables: the units of readings, and the words of programs that show them.
inline constexpr std::string_view kUnitTable = "KZMUtilities";
inline constexpr std::string_view kWordTable = "Words";

struct Catalog {
  std::vector<Table> tables;

  [[nodiscard]] const Table* find(std::string_view language, std::string_view name) const;
  [[nodiscard]] const Table* development(const Table& table) const { return find(kDevelopmentLanguage, table.name); }
  /// The table that this one is a layer over; null when there is none.
  [[nodiscard]] const Table* parent(const Table& table) const;
};

/// Reads the tables at these paths; those that cannot be read become faults.
[[nodiscard]] Catalog readCatalog(const std::vector<std::filesystem::path>& paths, Faults& faults);

/// The paths of all tables in the folders <language>.lproj of this folder, in order.
[[nodiscard]] std::vector<std::filesystem::path> tablePaths(const std::filesystem::path& folder);

/// The language tag without its region; nothing when it has none.
[[nodiscard]] std::optional<std::string> withoutRegion(std::string_view language);

/// The table with the rows of its parent where it has none, in the parent's order; a table that is no layer as it is.
[[nodiscard]] Table completed(const Catalog& catalog, const Table& table);

}  // namespace kzm::strings

#endif
