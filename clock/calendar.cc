#include "clock/calendar.h"

namespace kzm::clock {
namespace {

// Both calendars count best from 1 March of the year 0: the leap day then ends a year, and the months before it
// repeat in fives of 153 days.
constexpr std::int64_t kDaysInFiveMonths = 153;
constexpr std::int64_t kDaysInFourYears = 1461;
constexpr std::int64_t kDaysIn400Years = 146097;
constexpr std::int64_t kGregorianMarchOfYear0 = -719468;
constexpr std::int64_t kJulianMarchOfYear0 = -719470;

struct MarchYear {
  std::int64_t year;
  std::int64_t day;  // from 1 March, which is 0
};

constexpr std::int64_t daysBefore(std::int64_t marchMonth) { return (kDaysInFiveMonths * marchMonth + 2) / 5; }

constexpr MarchYear marchYearOf(const CivilDate& date) {
  const std::int64_t marchMonth = (date.month + 9) % 12;
  return {date.year - (date.month <= 2 ? 1 : 0), daysBefore(marchMonth) + date.day - 1};
}

constexpr CivilDate dateOf(const MarchYear& date) {
  const std::int64_t marchMonth = (5 * date.day + 2) / kDaysInFiveMonths;
  const int month = static_cast<int>(marchMonth < 10 ? marchMonth + 3 : marchMonth - 9);
  return {date.year + (month <= 2 ? 1 : 0), month, static_cast<int>(date.day - daysBefore(marchMonth)) + 1};
}

constexpr std::int64_t julianDay(const CivilDate& date) {
  const MarchYear march = marchYearOf(date);
  return 365 * march.year + floorDivide(march.year, 4) + march.day + kJulianMarchOfYear0;
}

constexpr std::int64_t gregorianDay(const CivilDate& date) {
  const MarchYear march = marchYearOf(date);
  const std::int64_t leapDays =
      floorDivide(march.year, 4) - floorDivide(march.year, 100) + floorDivide(march.year, 400);
  return 365 * march.year + leapDays + march.day + kGregorianMarchOfYear0;
}

constexpr CivilDate julianDate(std::int64_t dayNumber) {
  const std::int64_t days = dayNumber - kJulianMarchOfYear0;
  const std::int64_t cycle = floorDivide(days, kDaysInFourYears);
  const std::int64_t dayOfCycle = floorRemainder(days, kDaysInFourYears);
  const std::int64_t yearOfCycle = (dayOfCycle - dayOfCycle / (kDaysInFourYears - 1)) / 365;
  return dateOf({4 * cycle + yearOfCycle, dayOfCycle - 365 * yearOfCycle});
}

constexpr CivilDate gregorianDate(std::int64_t dayNumber) {
  const std::int64_t days = dayNumber - kGregorianMarchOfYear0;
  const std::int64_t cycle = floorDivide(days, kDaysIn400Years);
  const std::int64_t dayOfCycle = floorRemainder(days, kDaysIn400Years);
  // Takes out the leap days before this one: each ends a group of four years, of a hundred, of 400.
  const std::int64_t yearOfCycle =
      (dayOfCycle - dayOfCycle / 1460 + dayOfCycle / 36524 - dayOfCycle / (kDaysIn400Years - 1)) / 365;
  const std::int64_t dayOfYear = dayOfCycle - (365 * yearOfCycle + yearOfCycle / 4 - yearOfCycle / 100);
  return dateOf({400 * cycle + yearOfCycle, dayOfYear});
}

static_assert(gregorianDay({1970, 1, 1}) == 0 && gregorianDate(0) == CivilDate{1970, 1, 1});
static_assert(gregorianDay({1582, 10, 15}) == kFirstGregorianDay);
static_assert(julianDay({1582, 10, 4}) == kFirstGregorianDay - 1);

}  // namespace

CivilDate dateOfDay(std::int64_t dayNumber) noexcept {
  return dayNumber < kFirstGregorianDay ? julianDate(dayNumber) : gregorianDate(dayNumber);
}

std::int64_t dayOfDate(const CivilDate& date) noexcept {
  const std::int64_t gregorian = gregorianDay(date);
  return gregorian < kFirstGregorianDay ? julianDay(date) : gregorian;
}

int daysInMonth(std::int64_t year, int month) noexcept {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool isGregorian = year > 1582;
  const bool isLeap = floorRemainder(year, 4) == 0 &&
                      (!isGregorian || floorRemainder(year, 100) != 0 || floorRemainder(year, 400) == 0);
  return month == 2 && isLeap ? 29 : kDays[month - 1];
}

int weekdayOfDay(std::int64_t dayNumber) noexcept {
  constexpr std::int64_t kThursday = 5;  // 1970-01-01
  return static_cast<int>(floorRemainder(dayNumber + kThursday - 1, 7)) + 1;
}

}  // namespace kzm::clock
