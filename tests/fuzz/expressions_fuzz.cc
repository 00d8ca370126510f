// Any bytes as a regular expression and as the text that is searched: there is an answer, in good time, and a pattern
// without special characters is found exactly where it is.
#include <algorithm>
#include <cctype>
#include <chrono>
#include <string>

#include <KZMUtilities/text.h>

#include "tests/fuzz/input.h"

namespace kzm::fuzz {
namespace {

bool isPlain(std::string_view text) {
  return std::ranges::all_of(text, [](unsigned char c) { return c < 0x80 && std::isalnum(c) != 0; });
}

std::string inLowerCase(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kzm;
  constexpr std::chrono::seconds kLongest(20);  // under sanitizers, on a busy machine
  fuzz::Input input(bytes, size);
  const std::string pattern(input.textTo('\0'));
  const std::string text(input.rest());
  const auto start = std::chrono::steady_clock::now();
  static_cast<void>(matchForExpression(text, pattern));
  static_cast<void>(doesStringMatchExpression(text, pattern));
  fuzz::demand(std::chrono::steady_clock::now() - start < kLongest, "a search ends");
  if (fuzz::isPlain(pattern) && fuzz::isPlain(text)) {
    const bool isThere = fuzz::inLowerCase(text).find(fuzz::inLowerCase(pattern)) != std::string::npos;
    const std::optional<std::string> group = matchForExpression(text, "(" + pattern + ")");
    fuzz::demand(group.has_value() == isThere, "a plain pattern is found when it is there");
  }
  return 0;
}
