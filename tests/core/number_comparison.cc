// Compares many numbers, in every locale and with up to eight digits, with what the locale library writes:
//   number_comparison COUNT
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
#include <unicode/locid.h>
#include <vector>

#include "core/number_text.h"
#include "core/template.h"
#include "port/environment_locale.h"
#include "tests/core/number_reference.h"

namespace kzm::tests {
namespace {

constexpr int kMostDigits = 8;

std::vector<std::string> allLocales() {
  std::int32_t count = 0;
  const icu::Locale* locales = icu::Locale::getAvailableLocales(count);
  std::vector<std::string> names;
  for (std::int32_t i = 0; i < count; ++i) names.push_back(port::usableLocale(locales[i].getName()));
  return names;
}

std::atomic<long> compared{0};
std::atomic<long> different{0};

void report(const std::string& locale, int least, int most, double value, const std::string& text,
            const std::string& expected) {
  constexpr long kMostReported = 20;
  if (++different > kMostReported) return;
  std::fprintf(stderr, "%s, %d to %d digits, %.17g: \"%s\" instead of \"%s\"\n", locale.c_str(), least, most, value,
               text.c_str(), expected.c_str());
}

// Exact digit counts and counts from 0 take turns.
void compare(const std::string& locale, int most, long count, std::mt19937_64& random) {
  const NumberSymbols symbols = port::numberSymbols(locale);
  const int least = random() % 2U == 0U ? most : 0;
  const core::NumberStyle style = core::decimalStyle(symbols, least, most);
  const NumberReference reference(locale.c_str(), least, most);
  for (long i = 0; i < count; ++i) {
    const double value = anyDouble(random);
    const std::string text = core::numberAlone(style, value);
    const std::string expected = reference.text(value);
    if (text != expected) report(locale, least, most, value, text, expected);
  }
  compared += count;
}

void compareAll(long count) {
  const std::vector<std::string> locales = allLocales();
  const long styles = static_cast<long>(locales.size()) * (kMostDigits + 1);
  std::atomic<long> next{0};
  std::vector<std::jthread> threads(std::max(1U, std::thread::hardware_concurrency()));
  for (std::jthread& thread : threads) {
    thread = std::jthread([&] {
      for (long i = next++; i < styles; i = next++) {
        std::mt19937_64 random(static_cast<std::uint64_t>(i));
        const auto locale = static_cast<std::size_t>(i / (kMostDigits + 1));
        compare(locales[locale], static_cast<int>(i % (kMostDigits + 1)), count / styles + 1, random);
      }
    });
  }
}

}  // namespace
}  // namespace kzm::tests

int main(int argumentCount, char** arguments) {
  const long count = argumentCount == 2 ? std::atol(arguments[1]) : 0;
  if (count <= 0) {
    std::cerr << "usage: number_comparison COUNT\n";
    return 2;
  }
  kzm::tests::compareAll(count);
  std::cout << kzm::tests::compared << " numbers, " << kzm::tests::different << " different\n";
  return kzm::tests::different == 0 ? 0 : 1;
}
