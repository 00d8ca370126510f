// Arguments of any kind and bit pattern for the calls that the catalogue lists: link any_json.cc into the program.
#ifndef KZM_TESTS_SUPPORT_ANY_JSON_H
#define KZM_TESTS_SUPPORT_ANY_JSON_H

#include <string_view>

#include "catalogue/json.h"
#include "tests/support/input.h"

namespace kzm::tests {

/// Any bits, and often what a monitor reads: small fractions, numbers of all magnitudes, and next to where a unit
/// changes.
[[nodiscard]] double anyDouble(Input& input);

/// Any JSON, nested a few levels deep.
[[nodiscard]] catalogue::Json anyJson(Input& input);

/// Options of known names, with values of any type and decimals rules.
[[nodiscard]] catalogue::Json anyOptions(Input& input);

/// An argument for a parameter of that kind, and now and then one of another.
[[nodiscard]] catalogue::Json anyArgument(Input& input, std::string_view kind);

}  // namespace kzm::tests

#endif
