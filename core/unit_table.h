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

/// One text of a family, in the order in which it is looked up, as the family's own table has it. Unit is the family's.
template <class Unit>
struct UnitText {
  Unit unit;
  Spacing spacing;
  std::string_view text;
  const char* comment;
};

/// The texts of a family that is kept in the shared cache, in the order in which they are looked up. Give each table a
/// name of its own: g++ 14 merges template instances for equally named constants of two unnamed namespaces.
struct UnitTable {
  std::string_view cacheKey;
  std::span<const UnitRow> rows;
};

/// The text of the row in the user's language, looked up now.
[[nodiscard]] std::string localizedText(const UnitRow& row);

/// What is looked up for the family's texts.
template <class Unit, std::size_t N>
constexpr std::array<UnitRow, N> unitRows(std::string_view keyPrefix, const UnitText<Unit> (&texts)[N]) {
  std::array<UnitRow, N> rows;
  for (std::size_t i = 0; i < N; ++i) rows[i] = UnitRow(keyPrefix, texts[i].text, texts[i].comment);
  return rows;
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

/// Where each unit's rows are. The number of a unit is below Units.
template <std::size_t Units, class Unit, std::size_t N>
constexpr UnitIndex<Units> unitIndex(const UnitText<Unit> (&texts)[N]) {
  UnitIndex<Units> index{};
  for (auto& forms : index.rows) forms.fill(UnitIndex<Units>::kNone);
  for (std::size_t i = 0; i < N; ++i) {
    auto& row = index.rows[static_cast<std::size_t>(texts[i].unit)][static_cast<std::size_t>(texts[i].spacing)];
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
template <class Unit, std::size_t N>
consteval bool wellFormed(const UnitText<Unit> (&texts)[N]) {
  for (std::size_t i = 0; i < N; ++i) {
    const std::string_view text = texts[i].text;
    const std::size_t place = text.find("%@");
    const std::string_view after = place == std::string_view::npos ? std::string_view() : text.substr(place + 2);
    if (after.find('%') != std::string_view::npos && after != "%%") return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (text == texts[j].text) return false;
    }
  }
  return true;
}

}  // namespace kzm::core

#endif
