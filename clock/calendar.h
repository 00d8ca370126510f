// Day numbers and dates of the Gregorian calendar and, before 15 October 1582, the Julian one.
//
// Days are numbered from 1970-01-01, which is 0. Years are astronomical: 1 BC is 0, 2 BC is -1.
#ifndef KZM_CLOCK_CALENDAR_H
#define KZM_CLOCK_CALENDAR_H

#include <cstdint>

namespace kzm::clock {

/// 15 October 1582, the first Gregorian day; the day before it is 4 October.
inline constexpr std::int64_t kFirstGregorianDay = -141427;

struct CivilDate {
  std::int64_t year;
  int month;  ///< 1 to 12
  int day;    ///< 1 to 31
  [[nodiscard]] friend constexpr bool operator==(const CivilDate&, const CivilDate&) = default;
};

/// Division and remainder toward minus infinity; the divisor is positive.
[[nodiscard]] constexpr std::int64_t floorDivide(std::int64_t a, std::int64_t b) noexcept {
  return a / b - (a % b < 0 ? 1 : 0);
}
[[nodiscard]] constexpr std::int64_t floorRemainder(std::int64_t a, std::int64_t b) noexcept {
  return a - floorDivide(a, b) * b;
}

[[nodiscard]] CivilDate dateOfDay(std::int64_t dayNumber) noexcept;

/// The number of a date's day. A day beyond the month's end runs on into the next month. Of the ten dates that were
/// left out in October 1582, each is the day that the Julian calendar would have given it.
[[nodiscard]] std::int64_t dayOfDate(const CivilDate& date) noexcept;

[[nodiscard]] int daysInMonth(std::int64_t year, int month) noexcept;

/// 1 is Sunday, 7 Saturday.
[[nodiscard]] int weekdayOfDay(std::int64_t dayNumber) noexcept;

}  // namespace kzm::clock

#endif
