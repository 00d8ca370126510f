// Byte quantities as text: network throughput, disk activity, disk space and memory.
//
// Each family has three calls. The data call scales the quantity and gives {"format": the unit text with "%@" where the
// number goes, "decimals": how many fraction digits, "value": the scaled number}; the format call makes text of it; the
// attributed call makes text in two styles, the number in "attributes-main" and all else in "attributes-units".
//
// Options are only read. Absent or mistyped ones read as zero, false or no rule. Decimals rules are arrays of
// {"value", "decimals"}: the first whose "value" is greater than the scaled number gives the count of fraction digits,
// none gives 0. Attribute sets are passed on unread; null or absent means none.
//
// Every function takes any double, never fails, and may be called from any thread at any time. Negative quantities and
// negative infinity are shown at the lowest level, positive infinity at the highest. Numbers and texts follow the
// locale in force when the first of them was made. Results are new and belong to the caller.
#ifndef KZMUTILITIES_BYTES_H
#define KZMUTILITIES_BYTES_H

#include <string>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

// ---- Network throughput ---------------------------------------------------------------------------------------------

/// Scales a throughput into kilo, mega or giga units, always 1024-based.
///
/// options:
///   "bandwidthformat"   integer    0 bytes, 1 bytes from mega up, 2 bits, 3 bits from mega up; any other as 0
///   "reverse-type"      presence   swaps the format: 0 to 2, 1 to 3, 2 to 0, any other to 3
///   "unitsize"          integer    1 "G", 2 "GB" or "Gb", 3 "GB/s" or "Gb/s"; 0 and any other as 3
///   "short"             presence   unit size 1, whatever "unitsize" says
///   "space"             boolean    one space between number and unit
///   "early-upgrade"     boolean    moves up at 10^6 and 10^9 instead of 2^20 and 2^30; the factors stay binary
///   "decimals-kb", "decimals-mb", "decimals-gb"   decimals rules of each level
/// bytesPerSecond  NaN is shown at the lowest level
///
/// Example (English):
///   *KZMUtilitiesBandwidthData({{"bandwidthformat", 2}}, 1500000.0).find("format")  // "%@Mb/s"
[[nodiscard]] KZM_EXPORT kzm::Dictionary KZMUtilitiesBandwidthData(const kzm::Dictionary& options,
                                                                   double bytesPerSecond);

/// Renders a throughput with exactly the decimals that the rules give. The options are those of the
/// data call above.
///
/// Example (English):
///   KZMUtilitiesFormatBandwidth({{"bandwidthformat", 2}, {"space", true}}, 1500000.0)  // "11 Mb/s"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatBandwidth(const kzm::Dictionary& options, double bytesPerSecond);

/// The same text in two styles; but without decimals the number is a plain "%.0f": 1023 KB/s is never "1,023".
///
/// options  as above, and:
///   "attributes-main", "attributes-units"   any Value   the attributes of the number and of all else
///
/// Example (English):
///   const kzm::Dictionary options{{"attributes-units", "gray"}};
///   const kzm::AttributedString text = KZMUtilitiesFormatBandwidthWithAttributes(options, 3145728.0);
///   text.text()                // "3MB/s"
///   text.runs()[0].text        // "3"
///   text.runs()[1].attributes  // "gray"
[[nodiscard]] KZM_EXPORT kzm::AttributedString KZMUtilitiesFormatBandwidthWithAttributes(const kzm::Dictionary& options,
                                                                                         double bytesPerSecond);

// ---- Disk activity --------------------------------------------------------------------------------------------------

/// Scales a disk's read or write rate into kilo, mega or giga bytes per second, always 1024-based.
///
/// options:
///   "short"           boolean   bare prefix letter; "space" is then not read
///   "space"           boolean   one space between number and unit
///   "early-upgrade"   boolean   as for network throughput
///   "decimals-kb", "decimals-mb", "decimals-gb"   decimals rules of each level
/// bytesPerSecond  NaN is shown in kilobytes
///
/// Example (English):
///   *KZMUtilitiesDiskActivityData({{"short", true}}, 3145728.0).find("format")  // "%@M"
[[nodiscard]] KZM_EXPORT kzm::Dictionary KZMUtilitiesDiskActivityData(const kzm::Dictionary& options,
                                                                      double bytesPerSecond);

/// Renders a disk's rate with exactly the decimals that the rules give. The options are those of the
/// data call above.
///
/// Example (English):
///   KZMUtilitiesFormatDiskActivity({{"space", true}}, 3145728.0)  // "3 MB/s"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatDiskActivity(const kzm::Dictionary& options,
                                                                    double bytesPerSecond);

/// The same text in two styles.
///
/// options  as above, and:
///   "attributes-main", "attributes-units"   any Value   the attributes of the number and of all else
///   "hide-bytes"      boolean   a rate below 1024 bytes per second is the single text "-" in "attributes-main"
///
/// Example (English):
///   KZMUtilitiesFormatDiskActivityWithAttributes({{"hide-bytes", true}}, 1000.0).text()  // "-"
[[nodiscard]] KZM_EXPORT kzm::AttributedString KZMUtilitiesFormatDiskActivityWithAttributes(
    const kzm::Dictionary& options, double bytesPerSecond);

// ---- Disk space -----------------------------------------------------------------------------------------------------

/// Scales a disk's or volume's size into kilo to peta bytes, always 1000-based.
///
/// options:
///   "short"   boolean   bare prefix letter; "space" is then not read
///   "space"   boolean   one space between number and unit
///   "decimals-kb" … "decimals-pb"   decimals rules of each level
/// bytes  NaN is shown in petabytes
///
/// Example (English):
///   *KZMUtilitiesSpaceData({}, 250000000000.0).find("value")  // 250.0
[[nodiscard]] KZM_EXPORT kzm::Dictionary KZMUtilitiesSpaceData(const kzm::Dictionary& options, double bytes);

/// Renders a size with at most the decimals that the rules give; zeros at the end are dropped. The options are those of
/// the data call above.
///
/// Example (English):
///   KZMUtilitiesFormatSpace({{"space", true}}, 250000000000.0)  // "250 GB"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatSpace(const kzm::Dictionary& options, double bytes);

/// The same text in two styles.
///
/// options  as above, and:
///   "attributes-main", "attributes-units"   any Value   the attributes of the number and of all else
///
/// Example (English):
///   KZMUtilitiesFormatSpaceWithAttributes({{"attributes-main", "bold"}}, 250e9).runs()[0].attributes  // "bold"
[[nodiscard]] KZM_EXPORT kzm::AttributedString KZMUtilitiesFormatSpaceWithAttributes(const kzm::Dictionary& options,
                                                                                     double bytes);

// ---- Memory ---------------------------------------------------------------------------------------------------------

/// Scales a memory size into kilo to peta bytes, always 1024-based. The options are those of disk space.
///
/// bytes  NaN is shown in petabytes
///
/// Example (English):
///   *KZMUtilitiesMemoryData({{"space", true}}, 1073741824.0).find("format")  // "%@ GB"
[[nodiscard]] KZM_EXPORT kzm::Dictionary KZMUtilitiesMemoryData(const kzm::Dictionary& options, double bytes);

/// Renders a memory size with exactly the decimals that the rules give. The options are those of the
/// data call above.
///
/// Example (English):
///   KZMUtilitiesFormatMemory({{"space", true}}, 1073741824.0)  // "1 GB"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatMemory(const kzm::Dictionary& options, double bytes);

/// The same text in two styles, with the options of disk space.
///
/// Example (English):
///   KZMUtilitiesFormatMemoryWithAttributes({{"short", true}}, 1073741824.0).text()  // "1G"
[[nodiscard]] KZM_EXPORT kzm::AttributedString KZMUtilitiesFormatMemoryWithAttributes(const kzm::Dictionary& options,
                                                                                      double bytes);

#endif
