// What is callable by name in another shape than C++ has it, under its C++ name.
#ifndef KZM_CATALOGUE_ADAPTED_H
#define KZM_CATALOGUE_ADAPTED_H

#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/resources.h>
#include <KZMUtilities/text.h>

namespace kzm::catalogue {

// The bundle is always the library's own.
inline std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view table,
                                                       const std::optional<std::string>& comment) {
  return ::KZMLocalizedStringFromTableInBundle(key, table, bundleWithIdentifier(kBundleIdentifier),
                                               comment.has_value() ? comment->c_str() : nullptr);
}

// Operations that change their receiver answer with the changed receiver.
inline AttributedString replaceStringWithStringAttributes(AttributedString receiver, std::string_view target,
                                                          std::string_view replacement, const Value& attributes) {
  kzm::replaceStringWithStringAttributes(receiver, target, replacement, attributes);
  return receiver;
}
inline AttributedString replaceStringWithAttributedString(AttributedString receiver, std::string_view target,
                                                          const AttributedString& replacement) {
  kzm::replaceStringWithAttributedString(receiver, target, replacement);
  return receiver;
}

// The questions to the shared default units.
inline const KZMUtilitiesDefaultUnits& units() { return KZMUtilitiesDefaultUnits::shared(); }
inline MeasurementUnit windSpeedUnit() { return units().windSpeedUnit(); }
inline MeasurementUnit sensorsTemperatureUnit() { return units().sensorsTemperatureUnit(); }
inline MeasurementUnit weatherTemperatureUnit() { return units().weatherTemperatureUnit(); }
inline MeasurementUnit distanceUnit() { return units().distanceUnit(); }
inline MeasurementUnit pressureUnit() { return units().pressureUnit(); }
inline MeasurementUnit rainUnit() { return units().rainUnit(); }
inline MeasurementUnit snowUnit() { return units().snowUnit(); }

}  // namespace kzm::catalogue

#endif
