// What takes the place of a placeholder in a template: a part of a file, made of the whole catalogue.
#ifndef KZM_TOOLS_BINDINGS_PLACEHOLDERS_H
#define KZM_TOOLS_BINDINGS_PLACEHOLDERS_H

#include <string>

namespace kzm::bindings {

/// The constants of the C header: version, kinds of sensor, calendar units.
[[nodiscard]] std::string constants();

/// A commented prototype for each callable.
[[nodiscard]] std::string declarations();

/// The C++ body of each.
[[nodiscard]] std::string bodies();

/// For each function that introspection shows: which of its arguments are JSON texts, as members of an object that both
/// Python and JavaScript read.
[[nodiscard]] std::string introspected();

}  // namespace kzm::bindings

#endif
