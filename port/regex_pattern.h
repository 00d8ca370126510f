// What a pattern's text says about the work that it makes, before it is compiled.
#ifndef KZM_PORT_REGEX_PATTERN_H
#define KZM_PORT_REGEX_PATTERN_H

#include <string_view>

namespace kzm::port {

struct PatternWork {
  double setMilliseconds = 0;  ///< an estimate from above of what its sets take to compile, case-insensitively
  bool refersBack = false;     ///< whether it has a back reference, by number or by name
};

/// Reads the pattern as the engine does, as far as backslashes, quotations and sets go. A pattern that allows comments
/// can hide all of these in one: there everything counts that could be meant, and each set costs the most.
[[nodiscard]] PatternWork workOf(std::string_view pattern);

}  // namespace kzm::port

#endif
