#include "port/number_symbols.h"

#include <memory>
#include <new>
#include <optional>
#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

#include "port/environment_locale.h"
#include "port/memory_watch.h"

namespace kzm::port {
namespace {

std::string utf8(const icu::UnicodeString& text) {
  std::string bytes;
  text.toUTF8String(bytes);
  return bytes;
}

// What the locale writes before and after the digit of -1.
void readNegativeAffixes(const icu::number::LocalizedNumberFormatter& formatter, NumberSymbols& symbols,
                         UErrorCode& status) {
  const std::string text = utf8(formatter.formatInt(-1, status).toString(status));
  const std::size_t one = text.find(symbols.digits[1]);
  if (U_FAILURE(status) || one == std::string::npos) return;
  symbols.negativePrefix = text.substr(0, one);
  symbols.negativeSuffix = text.substr(one + symbols.digits[1].size());
}

// The shortest number that the locale groups shows its minimum: 1234 means 1, 12345 means 2.
void readMinimumGrouping(const icu::number::LocalizedNumberFormatter& formatter, NumberSymbols& symbols,
                         UErrorCode& status) {
  constexpr int kLargestProbe = 8;
  std::int64_t probe = 1;
  for (int i = 0; i < symbols.primaryGroup; ++i) probe *= 10;
  for (int minimum = 1; minimum <= kLargestProbe; ++minimum, probe *= 10) {
    if (utf8(formatter.formatInt(probe, status).toString(status)).find(symbols.groupSeparator) != std::string::npos) {
      symbols.minimumGroupDigits = minimum;
      return;
    }
  }
  symbols.primaryGroup = 0;
}

// Four zeros in a word, when each digit is two bytes and the second one counts up.
std::uint64_t twoByteZerosOf(const std::array<std::string, 10>& digits) {
  for (std::size_t digit = 0; digit < digits.size(); ++digit) {
    std::string counted = digits[0];
    counted.back() = static_cast<char>(counted.back() + static_cast<char>(digit));
    if (counted.size() != 2 || counted != digits[digit]) return 0;
  }
  constexpr std::uint64_t kFourTimes = 0x0001000100010001;
  return kFourTimes * (static_cast<unsigned char>(digits[0][0]) + 256U * static_cast<unsigned char>(digits[0][1]));
}

std::optional<NumberSymbols> symbolsOf(const icu::Locale& locale, UErrorCode& status) {
  using Symbol = icu::DecimalFormatSymbols;
  const std::unique_ptr<icu::NumberFormat> style(icu::NumberFormat::createInstance(locale, UNUM_DECIMAL, status));
  const auto* decimal = dynamic_cast<const icu::DecimalFormat*>(style.get());
  if (U_FAILURE(status) || decimal == nullptr) return std::nullopt;

  const Symbol& source = *decimal->getDecimalFormatSymbols();
  const auto formatter = icu::number::NumberFormatter::withLocale(locale).symbols(source);
  NumberSymbols symbols;
  for (int digit = 0; digit < 10; ++digit) {
    std::string& text = symbols.digits[static_cast<std::size_t>(digit)];
    text = utf8(source.getConstDigitSymbol(digit));
    symbols.digitsAreAscii = symbols.digitsAreAscii && text == std::to_string(digit);
    symbols.digitBytes = symbols.digits[0].size();
    if (text.empty() || text.size() != symbols.digitBytes) return std::nullopt;
  }
  symbols.decimalSeparator = utf8(source.getConstSymbol(Symbol::kDecimalSeparatorSymbol));
  symbols.twoByteZeros = twoByteZerosOf(symbols.digits);
  symbols.takeOneByteEach = symbols.digitsAreAscii && symbols.decimalSeparator.size() == 1;
  symbols.groupSeparator = utf8(source.getConstSymbol(Symbol::kGroupingSeparatorSymbol));
  symbols.separatorsInWord = symbols.groupSeparator.size() == 1 ? 1 : 0;
  symbols.notANumber = utf8(source.getConstSymbol(Symbol::kNaNSymbol));
  symbols.infinity = utf8(source.getConstSymbol(Symbol::kInfinitySymbol));
  if (decimal->isGroupingUsed()) {
    symbols.primaryGroup = decimal->getGroupingSize();
    symbols.secondaryGroup = decimal->getSecondaryGroupingSize();
  }
  if (symbols.secondaryGroup <= 0) symbols.secondaryGroup = symbols.primaryGroup;
  if (symbols.primaryGroup > 0) readMinimumGrouping(formatter, symbols, status);
  readNegativeAffixes(formatter, symbols, status);
  if (U_FAILURE(status)) return std::nullopt;
  return symbols;
}

}  // namespace

NumberSymbols numberSymbols(const std::string& localeIdentifier) {
  const MemoryWatch memory;
  const icu::Locale locale(localeIdentifier.c_str());
  const icu::Locale candidates[] = {locale, icu::Locale(locale.getBaseName()), icu::Locale(kFallbackLocale.data())};
  memory.demand();  // at once: what follows opens files, and may leave another error
  bool isDataMissing = false;
  for (const icu::Locale& candidate : candidates) {
    UErrorCode status = U_ZERO_ERROR;
    std::optional<NumberSymbols> symbols = symbolsOf(candidate, status);
    memory.demand(status);
    // Where one locale has data, all have: what another one misses, ICU lost when memory ran out, and looks for no
    // more.
    if (symbols && isDataMissing) throw std::bad_alloc();
    if (symbols) return *std::move(symbols);
    isDataMissing = isDataMissing || status == U_MISSING_RESOURCE_ERROR;
  }
  return plainSymbols();  // only a machine without any locale data comes here
}

NumberSymbols plainSymbols() {
  NumberSymbols plain;
  for (std::size_t digit = 0; digit < plain.digits.size(); ++digit) plain.digits[digit] = std::to_string(digit);
  plain.decimalSeparator = ".";
  plain.takeOneByteEach = true;
  plain.negativePrefix = "-";
  plain.notANumber = "nan";
  plain.infinity = "inf";
  return plain;
}

}  // namespace kzm::port
