// The option keys that more than one family reads.
#ifndef KZM_CORE_OPTIONS_H
#define KZM_CORE_OPTIONS_H

#include <KZMUtilities/dictionary.h>

namespace kzm::core {

inline constexpr Key kAttributesMain = "attributes-main";
inline constexpr Key kAttributesUnits = "attributes-units";
inline constexpr Key kDecimals = "decimals";
inline constexpr Key kReverseType = "reverse-type";
inline constexpr Key kShort = "short";
inline constexpr Key kSpace = "space";
inline constexpr Key kUnits = "units";
inline constexpr Key kValue = "value";

}  // namespace kzm::core

#endif
