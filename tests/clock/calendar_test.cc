#include "clock/calendar.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace kzm::clock {
namespace {

TEST(Calendar, DayNumbersAndDatesAgreeEverywhere) {
  for (std::int64_t day = -2441000; day < 200000000; day += day < 1000000 ? 1 : 997) {
    const CivilDate date = dateOfDay(day);
    ASSERT_EQ(dayOfDate(date), day);
    ASSERT_TRUE(date.day >= 1 && date.day <= daysInMonth(date.year, date.month)) << day;
  }
}

TEST(Calendar, MonthsHaveTheirDays) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int month = 1; month <= 12; ++month) EXPECT_EQ(daysInMonth(2023, month), kDays[month - 1]) << month;
}

TEST(Calendar, FebruaryHasALeapDayBothCalendarsWay) {
  constexpr struct {
    const char* why;
    std::int64_t year;
    int days;
  } kCases[] = {
      {"an ordinary year", 2023, 28},
      {"every fourth", 2024, 29},
      {"but no century", 1900, 28},
      {"nor a later one", 2100, 28},
      {"but every fourth of them", 2000, 29},
      {"as was the first Gregorian one", 1600, 29},
      {"the first Gregorian century without", 1700, 28},
      {"the last Julian century", 1500, 29},
      {"the year of the change", 1582, 28},
      {"the leap year after it", 1584, 29},
      {"AD 4", 4, 29},
      {"1 BC", 0, 29},
      {"5 BC", -4, 29},
      {"2 BC", -1, 28},
      {"101 BC", -100, 29},
  };
  for (const auto& row : kCases) EXPECT_EQ(daysInMonth(row.year, 2), row.days) << row.why;
}

TEST(Calendar, WeekdaysFollowOneAnother) {
  EXPECT_EQ(weekdayOfDay(0), 5) << "1970-01-01 was a Thursday";
  EXPECT_EQ(weekdayOfDay(3), 1);
  EXPECT_EQ(weekdayOfDay(2), 7);
  EXPECT_EQ(weekdayOfDay(-4), 1);
  EXPECT_EQ(weekdayOfDay(-5), 7);
}

}  // namespace
}  // namespace kzm::clock
