#include "cli/show/placing.h"

#include <algorithm>
#include <cmath>

#include <KZMUtilities/display_width.h>
#include <KZMUtilities/text.h>

namespace kzm::cli {

std::string cutTo(std::string_view text, std::size_t columns) {
  if (displayWidth(text) <= columns) return std::string(text);
  return columns == 0 ? "" : std::string(fitting(text, columns - 1)) + "…";
}

std::string inLine(std::string_view text) { return hasRightToLeft(text) ? isolated(text) : std::string(text); }

std::string repeated(std::string_view text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

Bar barOf(double part, std::size_t columns) {
  const double within = std::isnan(part) ? 0.0 : std::clamp(part, 0.0, 1.0);
  const auto halves = static_cast<std::size_t>(std::round(within * static_cast<double>(2 * columns)));
  const std::size_t taken = (halves + 1) / 2;
  return {repeated("█", halves / 2) + (halves % 2 == 1 ? "▌" : ""), repeated("░", columns - taken)};
}

}  // namespace kzm::cli
