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

}  // namespace
}  // namespace kzm::clock
