// The locale in force: what a host chose, else what the environment says.
#ifndef KZM_PORT_CURRENT_LOCALE_H
#define KZM_PORT_CURRENT_LOCALE_H

#include <string>

#include "port/number_symbols.h"

namespace kzm::port {

/// The identifier of the locale that decides which units are preferred: LC_ALL, LC_MEASUREMENT, LANG.
[[nodiscard]] std::string currentMeasurementLocale();

/// The number symbols of the current locale of numbers. The reference stays good forever, and getting it takes no lock
/// once they are known.
[[nodiscard]] const NumberSymbols& currentNumberSymbols();

/// The same symbols with groups of three digits, as far as the locale groups at all.
[[nodiscard]] const NumberSymbols& currentNumberSymbolsByThrees();

}  // namespace kzm::port

#endif
