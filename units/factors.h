// Published factors that are needed in two places.
#ifndef KZM_UNITS_FACTORS_H
#define KZM_UNITS_FACTORS_H

namespace kzm::units {

/// A millibar is a hectopascal.
inline constexpr double kInchesOfMercuryInAMillibar = 0.029529983071445;

}  // namespace kzm::units

#endif
