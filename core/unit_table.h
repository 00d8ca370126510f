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

/// One text: its localization key, which ends in its template, and the translator's hint (may be null). The compiler
/// joins the key: put together at run time, it would cost a third of the look-up.
class UnitRow {
 public:
  constexpr UnitRow() noexcept = default;
  constexpr UnitRow(std::string_view keyPrefix, std::string_view text, const char* comment)
      : comment_(comment), textAt_(static_cast<std::uint8_t>(keyPrefix.size())) {
    for (const std::string_view part : {keyPrefix, text}) {
      for (const char c : part) key_[size_++] = c;  // does not build when there is no room
    }
  }

  [[nodiscard]] constexpr std::string_view key() const noexcept { return {key_.data(), size_}; }
  [[nodiscard]] constexpr std::string_view text() const noexcept { return key().substr(textAt_); }
  [[nodiscard]] constexpr const char* comment() const noexcept { return comment_; }

 private:
  const char* comment_ = nullptr;
  std::uint8_t textAt_ = 0;
  std::uint8_t size_ = 0;
  std::array<char, 30> key_{};
};

/// The texts of a family that is kept in the shared cache, in the order in which they are looked up. Each has a name of
/// its own: what templates make of two of the same name, each in the unnamed namespace of its source, is one to g++ 14.
struct UnitTable {
  std::string_view cacheKey;
  std::span<const UnitRow> rows;
};

/// The text of the row in the user's language, looked up now.
[[nodiscard]] std::string localizedText(const UnitRow& row);

/// The rows of a family's own table, whose rows have members `text` and `comment` among others.
template <class Row, std::size_t N>
constexpr std::array<UnitRow, N> unitRows(std::string_view keyPrefix, const Row (&rows)[N]) {
  std::array<UnitRow, N> units;
  for (std::size_t i = 0; i < N; ++i) units[i] = UnitRow(keyPrefix, rows[i].text, rows[i].comment);
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
constexpr UnitIndex<Units> unitIndex(const Row (&rows)[N]) {
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

/// For the build's own check of a family's table: no template is there twice, and each has one place for the number, or
/// none.
template <class Row, std::size_t N>
consteval bool wellFormed(const Row (&rows)[N]) {
  for (std::size_t i = 0; i < N; ++i) {
    const std::string_view text = rows[i].text;
    const std::size_t place = text.find("%@");
    const std::string_view after = place == std::string_view::npos ? std::string_view() : text.substr(place + 2);
    if (after.find('%') != std::string_view::npos && after != "%%") return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (text == rows[j].text) return false;
    }
  }
  return true;
}

}  // namespace kzm::core

#endif
