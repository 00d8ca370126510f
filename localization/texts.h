// The texts of a table, to be found by their keys.
#ifndef KZM_LOCALIZATION_TEXTS_H
#define KZM_LOCALIZATION_TEXTS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>

namespace kzm::localization {

/// An index of tables, which must outlive it.
class Texts {
 public:
  /// Adds the table's texts; keys that are there already keep theirs.
  void add(const StringTable& table);

  /// The text of the key.
  [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const noexcept;

 private:
  struct Entry {
    std::string_view key;
    std::string_view text;
  };

  [[nodiscard]] std::size_t slotOf(std::string_view key) const noexcept;
  void grow();

  std::vector<Entry> entries_;
  std::vector<std::uint16_t> slots_;  // a power of two; an entry's position plus one, or 0
};

}  // namespace kzm::localization

#endif
