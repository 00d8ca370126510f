// Checks that the build makes of tables.
#ifndef KZM_CORE_ROWS_H
#define KZM_CORE_ROWS_H

#include <cstddef>

namespace kzm::core {

/// Whether each row stands at the position that its column names, so that the column's enumerator is the row's index.
template <class Row, std::size_t N, class Enum>
consteval bool standInOrder(const Row (&rows)[N], Enum Row::*column) {
  for (std::size_t i = 0; i < N; ++i) {
    if (static_cast<std::size_t>(rows[i].*column) != i) return false;
  }
  return true;
}

}  // namespace kzm::core

#endif
