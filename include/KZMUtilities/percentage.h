// Percentages as text.
//
// Options are only read; absent or mistyped ones read as zero or false. Every function takes any double, never fails,
// and may be called from any thread at any time. Texts follow the locale that was in force when the number formatter
// was made.
#ifndef KZMUTILITIES_PERCENTAGE_H
#define KZMUTILITIES_PERCENTAGE_H

#include <string>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

/// A percentage as text, such as "42%". The value is in percent already: 0.5 is half a percent.
///
/// options:
///   "decimals"   integer   the most fraction digits; below 0 as 0, above 340 as 340
///   "space"      boolean   one space between number and sign
///
/// Example (English):
///   KZMUtilitiesFormatPercentage({{"space", true}}, 42.0)  // "42 %"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatPercentage(const kzm::Dictionary& options, double percent);

/// The same text in two text styles.
///
/// options  as above, and:
///   "attributes-main"    any Value   the attributes of the number; null or absent for none
///   "attributes-units"   any Value   the attributes of the space and the sign
///
/// Example (English):
///   const kzm::Dictionary options{{"attributes-units", "gray"}};
///   const kzm::AttributedString text = KZMUtilitiesFormatPercentageWithAttributes(options, 42.0);
///   text.text()                // "42%"
///   text.runs()[1].text        // "%"
///   text.runs()[1].attributes  // "gray"
[[nodiscard]] KZM_EXPORT kzm::AttributedString KZMUtilitiesFormatPercentageWithAttributes(
    const kzm::Dictionary& options, double percent);

#endif
