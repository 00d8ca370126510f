#include "heading.h"

#include <memory>
#include <string>
#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <KZMUtilities/dates.h>
#include <KZMUtilities/formatters.h>

#include "styles.h"

namespace kzm::panel {
namespace {

// As the locale writes them, its calendar and its clock of twelve or twenty-four hours included.
constexpr const char* kClock = "jm";
constexpr const char* kDay = "yMMMMEEEEd";

std::string dateText(double timePoint, const char* fields) {
  constexpr double kMilliseconds = 1e3;
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale locale(currentLocale().c_str());
  const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createInstanceForSkeleton(fields, locale, status));
  if (U_FAILURE(status)) return {};
  const auto zone = icu::UnicodeString::fromUTF8(TimeZone::defaultZone().identifier());
  format->adoptTimeZone(icu::TimeZone::createTimeZone(zone));
  icu::UnicodeString text;
  std::string utf8;
  return format->format(timePoint * kMilliseconds, text).toUTF8String(utf8);
}

// Days that a clock change makes longer or shorter are full at their end all the same.
double partOfDay(double timePoint) {
  const TimePoint start = dayStart(timePoint);
  const TimePoint end = addDays(start, 1);
  return start.has_value() && end.has_value() ? (timePoint - *start) / (*end - *start) : 0.0;
}

}  // namespace

Heading headingAt(double timePoint) {
  const Styles styles = headingStyles();
  return {AttributedString(dateText(timePoint, kClock), styles.main),
          AttributedString(dateText(timePoint, kDay), styles.units), segments(partOfDay(timePoint), 24)};
}

}  // namespace kzm::panel
