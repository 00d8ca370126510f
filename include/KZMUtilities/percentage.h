// Percentages as text.
//
// Every function may be called from any thread at any time. Texts follow the locale that was in force when the number
// formatter was made.
#ifndef KZMUTILITIES_PERCENTAGE_H
#define KZMUTILITIES_PERCENTAGE_H

#include <string>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/export.h>

/// A percentage as text, such as "42%". The value is in percent already: 0.5 is half a percent.
///
/// options  read only, may be empty:
///   "decimals"   integer   at most so many fraction digits; 0 when absent or mistyped
///   "space"      boolean   one blank between number and sign
/// percent  any double
///
/// Example (English):  KZMUtilitiesFormatPercentage({{"space", true}}, 42.0)  // "42 %"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatPercentage(const kzm::Dictionary& options, double percent);

/// The same text in two text styles.
///
/// options  as above, and:
///   "attributes-main"    any Value   the attributes of the number; null or absent for none
///   "attributes-units"   any Value   the attributes of the blank and the sign
[[nodiscard]] KZM_EXPORT kzm::AttributedString KZMUtilitiesFormatPercentageWithAttributes(
    const kzm::Dictionary& options, double percent);

#endif
