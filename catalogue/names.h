// The names that other languages give to what is published.
#ifndef KZM_CATALOGUE_NAMES_H
#define KZM_CATALOGUE_NAMES_H

#include <string>
#include <string_view>

namespace kzm::catalogue {

/// The C++ name: a selector's words, joined with a capital at each joint.
///
/// Example:  cppName("addDays:timezone:")  // "addDaysTimezone"
[[nodiscard]] std::string cppName(std::string_view published);

/// The C name: the words of the C++ name in lower case after "kzm", which takes the place of the library's prefix.
///
/// Example:  cName("KZMUtilitiesFormatWeatherUV")  // "kzm_format_weather_uv"
[[nodiscard]] std::string cName(std::string_view published);

/// Words in lower case, joined by underscores. A row of capitals is one word.
///
/// Example:  snakeCase("bytesPerSecond")  // "bytes_per_second"
[[nodiscard]] std::string snakeCase(std::string_view name);

}  // namespace kzm::catalogue

#endif
