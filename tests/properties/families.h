// The families that properties are tried on: their calls, and in what they differ.
#ifndef KZM_TESTS_PROPERTIES_FAMILIES_H
#define KZM_TESTS_PROPERTIES_FAMILIES_H

#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dictionary.h>

namespace kzm::tests {

/// A level by what its English unit texts begin with after the number, and how much of the quantity one of it is.
struct Level {
  std::string_view mark;
  double factor;
};

struct Family {
  const char* name;
  /// What the rest of the row asks of any options.
  Dictionary (*adjusted)(Dictionary options);
  Dictionary (*data)(const Dictionary& options, double quantity);
  std::string (*plain)(const Dictionary& options, double quantity);
  /// Null where there is none, as is the next.
  AttributedString (*attributed)(const Dictionary& options, double quantity);
  /// Whether the attributed text is meant to differ from the plain one; it is put into `text` then.
  bool (*isMeantToDiffer)(const Dictionary& options, double quantity, const Dictionary& data, AttributedString& text);
  bool dropsZeros;                // at most as many digits as the rules say, else exactly as many
  std::span<const Level> levels;  // from the lowest; none where the quantity is converted or options choose the level
  double precision;               // how far the number on its level may be off, relatively

  friend std::ostream& operator<<(std::ostream& out, const Family& family) { return out << family.name; }
};

[[nodiscard]] std::span<const Family> families();

/// What is in the result of a data call.
[[nodiscard]] inline const std::string& formatIn(const Dictionary& data) { return *data.find("format")->string(); }
[[nodiscard]] inline double valueIn(const Dictionary& data) { return *data.find("value")->real(); }
[[nodiscard]] inline std::int64_t decimalsIn(const Dictionary& data) { return *data.find("decimals")->integer(); }

/// The unit text with the number in its place, in the two styles that the options ask for.
[[nodiscard]] AttributedString composed(const std::string& format, const std::string& number,
                                        const Dictionary& options);

}  // namespace kzm::tests

#endif
