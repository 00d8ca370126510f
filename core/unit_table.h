// The unit texts of a family of readings: what is looked up, in what order, and which row is whose.
#ifndef KZM_CORE_UNIT_TABLE_H
#define KZM_CORE_UNIT_TABLE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace kzm::core {

/// Whether a space is between number and unit.
enum class Spacing : std::uint8_t { tight, spaced };

/// One text: its template, which is also the end of its localization key, and the translator's hint (may be null).
struct UnitRow {
  std::string_view text;
  const char* comment;
};

/// The texts of a family, in the order in which they are looked up.
struct UnitTable {
  std::string_view cacheKey;   // in the shared cache; empty: looked up on every call, and not kept
  std::string_view keyPrefix;  // of the localization keys
  std::span<const UnitRow> rows;
};

/// The text of one row in the user's language, looked up now.
[[nodiscard]] std::string localizedText(const UnitTable& table, std::size_t row);

/// The rows of a family's own table, whose rows have members `text` and `comment` among others.
template <class Row, std::size_t N>
consteval std::array<UnitRow, N> unitRows(const Row (&rows)[N]) {
  std::array<UnitRow, N> units{};
  for (std::size_t i = 0; i < N; ++i) units[i] = {rows[i].text, rows[i].comment};
  return units;
}

/// The row of each unit, by spacing. A unit that has one form only has it in both.
template <std::size_t Units>
struct UnitIndex {
  static constexpr std::uint8_t kNone = std::numeric_limits<std::uint8_t>::max();
  std::array<std::array<std::uint8_t, 2>, Units> rows;

  [[nodiscard]] constexpr bool has(std::size_t unit) const noexcept { return rows[unit][0] != kNone; }
  [[nodiscard]] constexpr bool hasAll() const noexcept {
    for (std::size_t unit = 0; unit < Units; ++unit) {
      if (!has(unit)) return false;
    }
    return true;
  }
  [[nodiscard]] constexpr std::size_t row(std::size_t unit, Spacing spacing) const noexcept {
    return rows[unit][static_cast<std::size_t>(spacing)];
  }
};

/// Where each unit's rows are. Rows have members `spacing` and `unit`, whose number is below Units.
template <std::size_t Units, class Row, std::size_t N>
consteval UnitIndex<Units> unitIndex(const Row (&rows)[N]) {
  UnitIndex<Units> index{};
  for (auto& forms : index.rows) forms.fill(UnitIndex<Units>::kNone);
  for (std::size_t i = 0; i < N; ++i) {
    auto& row = index.rows[static_cast<std::size_t>(rows[i].unit)][static_cast<std::size_t>(rows[i].spacing)];
    if (row != UnitIndex<Units>::kNone) throw "two texts for one unit and spacing";
    row = static_cast<std::uint8_t>(i);
  }
  for (auto& [tight, spaced] : index.rows) {
    if (tight == UnitIndex<Units>::kNone) tight = spaced;
    if (spaced == UnitIndex<Units>::kNone) spaced = tight;
  }
  return index;
}

/// For the build's own check of a table: no template is there twice, and each has one place for the number, or none.
consteval bool wellFormed(std::span<const UnitRow> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t place = rows[i].text.find("%@");
    const std::string_view after = place == std::string_view::npos ? std::string_view() : rows[i].text.substr(place + 2);
    if (after.find('%') != std::string_view::npos && after != "%%") return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (rows[i].text == rows[j].text) return false;
    }
  }
  return true;
}

}  // namespace kzm::core

#endif
