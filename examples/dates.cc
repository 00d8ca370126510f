// Walks over the night in which Paris goes back to winter time.
// Prints: 25 hours in the day, the 27th, one month later the 27th
#include <iostream>

#include <KZMUtilities/KZMUtilities.h>

int main() {
  const auto paris = kzm::TimeZone::named("Europe/Paris");
  if (!paris.has_value()) return 1;
  kzm::TimeZone::setDefaultZone(*paris);

  const kzm::TimePoint noon = 1792926000.0;  // 2026-10-25 12:00 in Paris
  const kzm::TimePoint start = kzm::dayStart(noon);
  const kzm::TimePoint next = kzm::addDays(start, 1);
  const kzm::TimePoint later = kzm::addDays(next, 1);
  const auto day = [](kzm::TimePoint t) {
    return std::to_string(kzm::components(t, kzm::kCalendarUnitDay)->number(kzm::kCalendarUnitDay).value_or(0)) +
           kzm::ordinalSuffix(t).value_or("");
  };
  std::cout << (*next - *start) / 3600.0 << " hours in the day, the " << day(later) << ", one month later the "
            << day(kzm::addMonths(later, 1)) << '\n';
}
