#include "cli/numbers.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string>
#include <system_error>

#include "catalogue/json.h"
#include "cli/errors.h"

namespace kzm::cli {

double numberIn(std::string_view text) {
  if (const std::optional<double> named = catalogue::namedDouble(text)) return *named;
  double number = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool isWhole = end == text.data() + text.size();
  if (error == std::errc::result_out_of_range && isWhole) throw InputError(inQuotes(text) + " is out of range");
  // The infinities and NaN have the names above alone.
  if (error != std::errc() || !isWhole || !std::isfinite(number)) throw InputError(inQuotes(text) + " is not a number");
  return number;
}

std::int64_t integerIn(std::string_view text, std::int64_t least, std::int64_t most) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc() && end == text.data() + text.size() && number >= least && number <= most) return number;
  throw InputError(inQuotes(text) + " is not a whole number from " + std::to_string(least) + " to " +
                   std::to_string(most));
}

}  // namespace kzm::cli
