// Numbers as text in the user's number style.
//
// Numbers follow the locale in force: the one a host chose with kzm::setCurrentLocale, else the first of LC_ALL,
// LC_NUMERIC and LANG that is not empty, read once and without setlocale. C, POSIX and names of no known language give
// grouped English numbers.
//
// Every function may be called from any thread at any time. Formatters and locales never change, and all callers
// share them. Options are only read; absent or mistyped ones read as zero.
#ifndef KZMUTILITIES_FORMATTERS_H
#define KZMUTILITIES_FORMATTERS_H

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

namespace kzm {

struct NumberSymbols;

namespace core {
struct FormatterParts;
}

// ---- Formatters and locales -----------------------------------------------------------------------------------------

/// A decimal-style number formatter: the locale's separators, grouping, minimum grouping, digits and minus.
///
/// Numbers are rounded half to even on the shortest decimal that reads back to the same double: 2.675 with two digits
/// is 2.68. NaN is the locale's symbol without a sign; the infinities are the locale's symbol, with its minus when
/// negative. A negative number that rounds to zero keeps its minus.
///
/// Example (English):
///   NumberFormatter(1, 2).string(1234.0)  // "1,234.0"
///   NumberFormatter(0, 2).string(2.675)  // "2.68"
///   NumberFormatter(3, 1).string(1.5)  // "1.500"
///   NumberFormatter(3, 1).maximumFractionDigits()  // 1
class KZM_EXPORT NumberFormatter final : public Object {
 public:
  /// A formatter in the current locale. Any counts are taken and given back as they are; when a number is formatted
  /// they are clamped to 0..340, and a minimum above the maximum raises it.
  NumberFormatter(std::int64_t minimumFractionDigits, std::int64_t maximumFractionDigits);
  NumberFormatter(const NumberFormatter&) = default;
  NumberFormatter& operator=(const NumberFormatter&) = default;
  ~NumberFormatter() override;

  [[nodiscard]] std::int64_t minimumFractionDigits() const noexcept { return minimum_; }
  [[nodiscard]] std::int64_t maximumFractionDigits() const noexcept { return maximum_; }

  /// The text of any double.
  [[nodiscard]] std::string string(double value) const;

 private:
  friend struct core::FormatterParts;

  std::int64_t minimum_;
  std::int64_t maximum_;
  const NumberSymbols* symbols_;  // of the locale in force when the formatter was made
};

/// A locale, known by its identifier. Any text is taken and given back as it is, an empty or malformed one too: whoever
/// is given the locale decides what that means.
///
/// Example:
///   Locale("de_CH").identifier()  // "de_CH"
///   Locale("no locale").identifier()  // "no locale"
class KZM_EXPORT Locale final : public Object {
 public:
  explicit Locale(std::string identifier) : identifier_(std::move(identifier)) {}
  Locale(const Locale&) = default;
  Locale& operator=(const Locale&) = default;
  ~Locale() override;
  [[nodiscard]] const std::string& identifier() const noexcept { return identifier_; }

 private:
  std::string identifier_;
};

// ---- The locale in force --------------------------------------------------------------------------------------------

/// Chooses the locale of numbers and of default units for the whole process: an identifier such as "de_CH" or
/// "hi_IN@numbers=deva", or a POSIX name such as "de_CH.UTF-8". An empty or malformed one, and one that names no known
/// language, gives grouped English numbers and metric units, as "C" does. To be called at start-up: formatters, unit
/// texts and default units made before keep the locale they were made in. Texts are chosen by the localization library,
/// which is to be given the same identifier: there are languages with texts, but without a number style of their own.
///
/// Example:
///   setCurrentLocale("en_US.UTF-8");
///   currentLocale()  // "en_US"
KZM_EXPORT void setCurrentLocale(std::string_view identifier);

/// The identifier of the locale of numbers.
///
/// Example (English):
///   currentLocale()  // "en_US"
[[nodiscard]] KZM_EXPORT std::string currentLocale();

}  // namespace kzm

// ---- What the shared cache keeps ------------------------------------------------------------------------------------

/// The shared formatter with at least and at most the given numbers of fraction digits, made on the first request and
/// kept in the shared cache under "NumberFormatter-Decimal-<minimum>.<maximum>". Any counts are taken; a maximum below
/// the minimum is raised to it. Never null.
///
/// Example (English):
///   KZMUtilitiesDecimalFormatterWithFractions(2, 2)->string(3.0)  // "3.00"
[[nodiscard]] KZM_EXPORT std::shared_ptr<const kzm::NumberFormatter> KZMUtilitiesDecimalFormatterWithFractions(
    std::int64_t minimumFractionDigits, std::int64_t maximumFractionDigits);

/// The shared formatter with at most the given number of fraction digits, kept under
/// "NumberFormatter-Decimal--.<maximum>". Any count is taken. Never null.
///
/// Example (English):
///   KZMUtilitiesDecimalFormatterWithMaximum(2)->string(3.14159)  // "3.14"
[[nodiscard]] KZM_EXPORT std::shared_ptr<const kzm::NumberFormatter> KZMUtilitiesDecimalFormatterWithMaximum(
    std::int64_t maximumFractionDigits);

/// The POSIX variant of the locale: its identifier with "_POSIX" after it, kept in the shared cache under
/// "Locale-Posix-<identifier>". An identifier of which no POSIX variant can be made (an empty or malformed one, or one
/// with keywords, which would swallow the suffix) gives the locale itself; null gives null.
///
/// Example:
///   KZMUtilitiesPosixLocale(std::make_shared<kzm::Locale>("de_CH"))->identifier()  // "de_CH_POSIX"
[[nodiscard]] KZM_EXPORT std::shared_ptr<const kzm::Locale> KZMUtilitiesPosixLocale(
    const std::shared_ptr<const kzm::Locale>& locale);

// ---- Text -----------------------------------------------------------------------------------------------------------

/// The number alone, as text.
///
/// options:
///   "decimals"   integer   the most fraction digits; below 0 as 0, above 340 as 340
/// value  any double; NaN and the infinities have the locale's symbols
///
/// Example (English):
///   KZMUtilitiesFormatNumber({{"decimals", 1}}, 1234.56)  // "1,234.6"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatNumber(const kzm::Dictionary& options, double value);

#endif
