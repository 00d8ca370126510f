// Checks that the build makes of tables.
#ifndef KZM_CORE_ROWS_H
#define KZM_CORE_ROWS_H

#include <cstddef>
#include <string_view>
#include <utility>

namespace kzm::core {

/// Whether the value has a name in its enumeration: the compiler writes others as a number in parentheses.
template <auto value>
consteval bool isEnumerator() {
  const std::string_view here = __PRETTY_FUNCTION__;
  const std::size_t start = here.find("value = ") + std::string_view("value = ").size();
  return here[start] != '(';
}

/// How many enumerators there are from 0 on, one after the other.
template <class Enum, std::size_t count = 0>
consteval std::size_t countEnumerators() {
  if constexpr (isEnumerator<static_cast<Enum>(count)>()) {
    return countEnumerators<Enum, count + 1>();
  } else {
    return count;
  }
}

/// How many enumerators there are below `end`, in an enumeration whose numbers are published and may have gaps.
template <class Enum, std::size_t end = 256>
consteval std::size_t countNamed() {
  return []<std::size_t... number>(std::index_sequence<number...>) {
    return (std::size_t{isEnumerator<static_cast<Enum>(number)>()} + ...);
  }
  (std::make_index_sequence<end>());
}

/// Whether each row is at the position that its column names, so that the column's enumerator is the row's index, and
/// only the last enumerators, the given number of them, have none.
template <class Row, std::size_t N, class Enum>
consteval bool areInOrder(const Row (&rows)[N], Enum Row::*column, std::size_t withoutRow = 0) {
  for (std::size_t i = 0; i < N; ++i) {
    if (static_cast<std::size_t>(rows[i].*column) != i) return false;
  }
  return N + withoutRow == countEnumerators<Enum>();
}

/// Whether every enumerator has its element, for lists whose elements have no column that names it.
template <class Enum, class Element, std::size_t N>
consteval bool haveAll(const Element (&/*elements*/)[N]) {
  return N == countEnumerators<Enum>();
}

}  // namespace kzm::core

#endif
