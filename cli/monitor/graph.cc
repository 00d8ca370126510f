#include "cli/monitor/graph.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace kzm::cli {
namespace {

constexpr std::string_view kBlocks[] = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
constexpr std::size_t kHighest = std::size(kBlocks) - 1;

std::string_view blockOf(double value, double top) {
  if (std::isnan(value)) return " ";
  if (value <= 0) return kBlocks[0];
  const double height = std::ceil(std::min(value / top, 1.0) * static_cast<double>(kHighest));
  return kBlocks[static_cast<std::size_t>(std::max(height, 1.0))];
}

}  // namespace

std::string graph(const std::deque<double>& values, std::size_t columns, double top) {
  const std::size_t shown = std::min(columns, values.size());
  std::string text(columns - shown, ' ');
  for (std::size_t i = values.size() - shown; i < values.size(); ++i) text += blockOf(values[i], top);
  return text;
}

double topOf(const std::deque<double>& values, std::size_t columns, double least) {
  const std::size_t shown = std::min(columns, values.size());
  for (std::size_t i = values.size() - shown; i < values.size(); ++i) least = std::max(least, values[i]);
  return least;
}

}  // namespace kzm::cli
