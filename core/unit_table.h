// The localized unit texts of each family, looked up once per process and kept in the shared cache.
#ifndef KZM_CORE_UNIT_TABLE_H
#define KZM_CORE_UNIT_TABLE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "core/template.h"

namespace kzm::core {

/// The families that keep a table of their unit texts.
enum class UnitFamily : std::uint8_t { bandwidth, diskActivity, diskSpace, memory, sensors };
inline constexpr std::size_t kUnitFamilies = 5;

/// One unit: its template, which is also the end of its localization key, and the translator's hint (may be null).
struct UnitRow {
  std::string_view text;
  const char* comment;
};

/// A family and its rows, in the order in which they are looked up.
struct UnitTable {
  UnitFamily family;
  std::span<const UnitRow> rows;
};

/// The texts of a table, row by row; a row that the cached table lacks is empty.
using UnitTexts = std::vector<std::optional<Template>>;

/// The texts from the shared cache. On the first call all rows are looked up and stored.
[[nodiscard]] UnitTexts unitTexts(const UnitTable& table);

/// The rows of a family's own table, whose columns begin with the two of UnitRow.
template <class Row, std::size_t N>
consteval std::array<UnitRow, N> unitRows(const Row (&rows)[N]) {
  std::array<UnitRow, N> units{};
  for (std::size_t i = 0; i < N; ++i) units[i] = {rows[i].text, rows[i].comment};
  return units;
}

/// For the build's own check of a table: no template stands twice, and each has one place for the number, or none.
consteval bool wellFormed(std::span<const UnitRow> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t place = rows[i].text.find("%@");
    if (place != std::string_view::npos && rows[i].text.find('%', place + 1) != std::string_view::npos) return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (rows[i].text == rows[j].text) return false;
    }
  }
  return true;
}

/// The text of one unit in the user's language, without cache: prefix and template make the key.
[[nodiscard]] std::string localizedUnit(std::string_view keyPrefix, std::string_view text, const char* comment);

}  // namespace kzm::core

#endif
