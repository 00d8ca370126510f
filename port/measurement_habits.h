// What a locale identifier says about units of measurement.
#ifndef KZM_PORT_MEASUREMENT_HABITS_H
#define KZM_PORT_MEASUREMENT_HABITS_H

#include <string>

namespace kzm::port {

struct MeasurementHabits {
  std::string region;       // whose habits hold: "GB"; "001" is the whole world; empty when nothing says
  std::string temperature;  // the scale asked for by name: "celsius", "fahrenheit", "kelvin"; empty when none is
};

/// The region is that of the keyword "measure" ("metric" is the world's, "ussystem" US, "uksystem" GB), else of "rg"
/// ("gbzzzz", or a part of a country as in "gbsct"), else the identifier's country, else the one in which most speakers
/// of the language live. The temperature is that of the keyword "mu". Values of no meaning are passed over.
[[nodiscard]] MeasurementHabits measurementHabitsOf(const std::string& identifier);

}  // namespace kzm::port

#endif
