// Day and time as the locale writes them.
#include "examples/panel/heading.h"

#include <gtest/gtest.h>

#include <KZMUtilities/dates.h>
#include <KZMUtilities/formatters.h>

namespace kzm::panel {
namespace {

struct Case {
  const char* locale;
  const char* clock;
  const char* day;
};
constexpr Case kCases[] = {
    {"en_US", "3:04\u202FPM", "Wednesday, February 3, 2027"},
    {"de_DE", "15:04", "Mittwoch, 3. Februar 2027"},
    {"ja_JP", "15:04", "2027年2月3日水曜日"},
    {"th_TH", "15:04", "วันพุธที่ 3 กุมภาพันธ์ 2570"},
    {"fa_IR", "۱۵:۰۴", "۱۴۰۵ بهمن ۱۴, چهارشنبه"},
};

TEST(Heading, IsInTheLocalesOwnPatterns) {
  constexpr double kTimePoint = 1801667040.0;
  TimeZone::setDefaultZone(TimeZone::utc());
  for (const Case& test : kCases) {
    setCurrentLocale(test.locale);
    const Heading heading = headingAt(kTimePoint);
    EXPECT_EQ(heading.clock.text(), test.clock) << test.locale;
    EXPECT_EQ(heading.day.text(), test.day) << test.locale;
  }
}

}  // namespace
}  // namespace kzm::panel
