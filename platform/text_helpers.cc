// Replacement in attributed strings, and tests of a text against a regular expression.
#include <KZMUtilities/text.h>

#include "port/regex.h"

namespace kzm {

void replaceStringWithStringAttributes(AttributedString& text, std::string_view target, std::string_view replacement,
                                       const Value& attributes) {
  text.replaceFirst(target, AttributedString(std::string(replacement), attributes));
}

void replaceStringWithAttributedString(AttributedString& text, std::string_view target,
                                       const AttributedString& replacement) {
  text.replaceFirst(target, replacement);
}

bool doesStringMatchExpression(std::string_view text, std::string_view pattern) {
  return port::firstGroup(text, pattern).has_value();
}

std::optional<std::string> matchForExpression(std::string_view text, std::string_view pattern) {
  return port::firstGroup(text, pattern);
}

}  // namespace kzm
