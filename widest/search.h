// Search among all doubles, in their order.
#ifndef KZM_WIDEST_SEARCH_H
#define KZM_WIDEST_SEARCH_H

#include <bit>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace kzm::widest {

/// Neighboring doubles have neighboring places; both zeros have place 0.
[[nodiscard]] inline std::int64_t placeOf(double number) noexcept {
  const auto magnitude = std::bit_cast<std::int64_t>(std::abs(number));
  return std::signbit(number) ? -magnitude : magnitude;
}

[[nodiscard]] inline double numberAt(std::int64_t place) noexcept {
  return place < 0 ? -std::bit_cast<double>(-place) : std::bit_cast<double>(place);
}

[[nodiscard]] inline double nextAfter(double number) noexcept { return numberAt(placeOf(number) + 1); }
[[nodiscard]] inline double nextBefore(double number) noexcept { return numberAt(placeOf(number) - 1); }

/// The first number after `from` for which the statement holds; it holds for `to`, and from some number on.
template <class Statement>
[[nodiscard]] double firstWhere(double from, double to, const Statement& holds) {
  std::int64_t before = placeOf(from);
  std::int64_t at = placeOf(to);
  while (before + 1 < at) {
    const std::int64_t middle = std::midpoint(before, at);
    (holds(numberAt(middle)) ? at : before) = middle;
  }
  return numberAt(at);
}

}  // namespace kzm::widest

#endif
