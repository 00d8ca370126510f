// Warm calls: beside the floor, beside the locale library's formatter, and in other locales.
#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/shared.h>

#include "bench/calls.h"
#include "bench/parts.h"
#include "bench/report.h"
#include "bench/sweep.h"
#include "bench/values.h"

namespace kzm::bench {
namespace {

struct Heading {
  Kind kind;
  const char* what;
  double icuReach;  // how many times faster than the locale library; 0 for any
};
constexpr Heading kHeadings[] = {
    {Kind::plain, "Plain calls", 6.0}, {Kind::weather, "Weather", 0.0}, {Kind::attributed, "Attributed calls", 3.0},
    {Kind::data, "Data calls", 0.0},   {Kind::c, "The C library", 0.0},
};

std::vector<Timed> timed(std::span<const Call> calls) {
  std::vector<Timed> all;
  for (const Call& call : calls) all.push_back({call.values(), call.pass});
  return all;
}

std::vector<Timed> withReferences(std::span<const Call> calls) {
  std::vector<Timed> all = timed(calls);
  all.push_back({scaledRates(), floorPass});
  all.push_back({scaledRates(), icuPass});
  return all;
}

std::string allocationsOf(const Call& call) {
  return std::to_string(mostAllocations(call.pass, call.values())) + " allocations";
}

std::string remarkOn(const Call& call, double nanoseconds) {
  std::array<char, 32> time{};
  std::snprintf(time.data(), time.size(), "%6.1f ns, ", nanoseconds);
  return time.data() + allocationsOf(call);
}

void measureKind(const Heading& heading) {
  const std::span<const Call> all = calls(heading.kind);
  const std::vector<double> times = leastTimes(withReferences(all));
  const double floor = times[all.size()];
  const double icu = times[all.size() + 1];
  printHeading(heading.what, "x floor");
  for (std::size_t i = 0; i < all.size(); ++i) {
    printRow(all[i].name, times[i] / floor, all[i].reach > 0.0 ? atMost(all[i].reach) : Reach{},
             remarkOn(all[i], times[i]));
  }
  if (heading.icuReach <= 0.0) return;
  const double slowest = *std::max_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(all.size()));
  printRow("the slowest beside ICU's number", icu / slowest, atLeast(heading.icuReach), "times faster");
}

// As a host does when it starts; what was made in another locale is forgotten.
void chooseLocale(const std::string& locale) {
  setCurrentLocale(locale);
  KZMLocalizationSetLanguages({&locale, 1});
  KZMUtilities::shared().setCache(nullptr);
}

// Those whose texts depend on the locale.
std::vector<Call> callsOfLocales() {
  std::vector<Call> all;
  for (const Kind kind : {Kind::plain, Kind::weather, Kind::attributed, Kind::data}) {
    const std::span<const Call> some = calls(kind);
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

}  // namespace

void measureCalls() {
  for (const Heading& heading : kHeadings) measureKind(heading);
}

void measureLocales() {
  constexpr const char* kLocales[] = {"de_CH", "hi_IN", "ar_EG", "sv_SE", "fr_FR"};
  constexpr int kRounds = 15;
  const std::vector<Call> all = callsOfLocales();
  printHeading("The slowest call of each locale", "x en_US");
  for (const char* locale : kLocales) {
    chooseLocale("en_US");
    const std::vector<double> english = leastTimes(timed(all), kRounds);
    chooseLocale(locale);
    std::vector<double> ratios = leastTimes(timed(all), kRounds);
    for (std::size_t i = 0; i < ratios.size(); ++i) ratios[i] /= english[i];
    const auto slowest = std::max_element(ratios.begin(), ratios.end()) - ratios.begin();
    const Call& call = all[static_cast<std::size_t>(slowest)];
    printRow(locale, ratios[static_cast<std::size_t>(slowest)], atMost(1.5),
             call.name + std::string(", ") + allocationsOf(call));
  }
  chooseLocale("en_US");
}

}  // namespace kzm::bench
