#include "tools/strings/open_data.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <unicode/uchar.h>
#include <unicode/ulocdata.h>

#include "tools/strings/key.h"

namespace kzm::strings {
namespace {

// Our units and Unicode's. A "K" or "G" is a prefix of bytes in some families and no unit of its own.
struct Unit {
  std::string_view family;  // empty: in all families
  std::string_view unit;
  const char* identifier;
};
constexpr Unit kUnits[] = {
    {"", "PB", "petabyte"},
    {"", "TB", "terabyte"},
    {"", "GB", "gigabyte"},
    {"", "MB", "megabyte"},
    {"", "KB", "kilobyte"},
    {"", "GB/s", "gigabyte-per-second"},
    {"", "MB/s", "megabyte-per-second"},
    {"", "KB/s", "kilobyte-per-second"},
    {"", "Gb", "gigabit"},
    {"", "Mb", "megabit"},
    {"", "Kb", "kilobit"},
    {"", "Gb/s", "gigabit-per-second"},
    {"", "Mb/s", "megabit-per-second"},
    {"", "Kb/s", "kilobit-per-second"},
    {"", "°", "temperature-generic"},
    {"Sensors", "K", "kelvin"},
    {"Weather", "K", "kelvin"},
    {"", "rpm", "revolution-per-minute"},
    {"", "V", "volt"},
    {"", "mV", "millivolt"},
    {"", "A", "ampere"},
    {"", "mA", "milliampere"},
    {"", "W", "watt"},
    {"", "mW", "milliwatt"},
    {"", "GHz", "gigahertz"},
    {"", "Lx", "lux"},
    {"", "Lux", "lux"},
    {"", "knots", "knot"},
    {"", "mph", "mile-per-hour"},
    {"", "km/h", "kilometer-per-hour"},
    {"", "m/s", "meter-per-second"},
    {"", "hPa", "hectopascal"},
    {"", "mb", "millibar"},
    {"", "\"", "inch"},
    {"", "miles", "mile"},
    {"", "km", "kilometer"},
    {"", "mm", "millimeter"},
    {"", "cm", "centimeter"},
    {"", "Days", "day"},
    {"", "%%", "percent"},
    {"Load", "min", "minute"},
};

// Each of them takes another form in some language.
constexpr double kNumbers[] = {0, 1, 2, 5, 11, 21, 2.5};

constexpr UNumberUnitWidth kWidths[] = {UNUM_UNIT_WIDTH_SHORT, UNUM_UNIT_WIDTH_NARROW};

std::string text(const icu::number::LocalizedNumberFormatter& formatter, double number) {
  UErrorCode status = U_ZERO_ERROR;
  std::string utf8;
  formatter.formatDouble(number, status).toString(status).toUTF8String(utf8);
  return utf8;
}

void replaceAll(std::string& text, std::string_view part, std::string_view by) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size())) {
    text.replace(at, part.size(), by);
  }
}

/// As our tables write it: "%@" for the number, "%%" for the sign, no marks of direction, one kind of space.
std::string pattern(std::string text, const std::string& number) {
  replaceAll(text, "%", kPercent);
  replaceAll(text, number, kNumber);
  for (const std::string_view mark : {"\u061C", "\u200E", "\u200F"}) replaceAll(text, mark, "");
  replaceAll(text, "\u202F", kNoBreakSpace);
  return text;
}

/// The unit with a capital first letter, as our kilobytes have it.
std::string capitalized(const std::string& unit) {
  icu::UnicodeString text = icu::UnicodeString::fromUTF8(unit);
  if (!text.isEmpty()) text.replace(0, text.moveIndex32(0, 1), u_toupper(text.char32At(0)));
  std::string utf8;
  return text.toUTF8String(utf8);
}

/// All forms of a unit in a language, each as a pattern.
std::set<std::string> allPatterns(const std::string& language, const char* identifier) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale locale = icu::Locale::forLanguageTag(language, status);
  const icu::MeasureUnit unit = icu::MeasureUnit::forIdentifier(identifier, status);
  std::set<std::string> patterns;
  if (U_FAILURE(status)) return patterns;
  const auto plain = icu::number::NumberFormatter::withLocale(locale);
  for (const UNumberUnitWidth width : kWidths) {
    const auto formatter = plain.unit(unit).unitWidth(width);
    for (const double number : kNumbers) patterns.insert(pattern(text(formatter, number), text(plain, number)));
  }
  return patterns;
}

}  // namespace

const std::set<std::string>& OpenData::patternsOf(const char* identifier) const {
  const auto [found, isNew] = patterns_.try_emplace(identifier);
  if (isNew) found->second = allPatterns(language_, identifier);
  return found->second;
}

std::optional<bool> OpenData::agrees(const Entry& entry) const {
  const Key key = *parseKey(entry.key);
  const std::string unit = unitOf(key.pattern);
  const auto* known = std::ranges::find_if(
      kUnits, [&](const Unit& row) { return row.unit == unit && (row.family.empty() || row.family == key.family); });
  if (known == std::end(kUnits)) return std::nullopt;
  const std::set<std::string>& patterns = patternsOf(known->identifier);
  if (unit == kPercent) return patterns.contains(entry.text);
  const bool isKilo = unit.starts_with('K');
  return std::ranges::any_of(patterns, [&](const std::string& found) {
    const std::string theirs = unitOf(found);
    return theirs == unitOf(entry.text) || (isKilo && capitalized(theirs) == unitOf(entry.text));
  });
}

void checkSources(const Table& table, Report& report) {
  UErrorCode status = U_ZERO_ERROR;
  UVersionInfo version{};
  ulocdata_getCLDRVersion(version, &status);
  const std::string available = "CLDR " + std::to_string(version[0]);
  const OpenData data(table.language);
  for (const Entry& entry : table.entries) {
    if (entry.isInherited || noteOf(table, entry).source != available || data.agrees(entry) == true) continue;
    report.add(entry, "\"" + entry.text + "\" is not in the data of " + available);
  }
}

}  // namespace kzm::strings
