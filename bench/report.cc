#include "bench/report.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <vector>

namespace kzm::bench {
namespace {

int outOfReach = 0;

bool isWithin(double measured, Reach reach) {
  switch (reach.sense) {
    case Reach::Sense::anything:
      return true;
    case Reach::Sense::atMost:
      return measured <= reach.bound;
    case Reach::Sense::atLeast:
      return measured >= reach.bound;
  }
  return true;
}

int length(std::string_view text) { return static_cast<int>(text.size()); }

}  // namespace

void printHeading(std::string_view what, std::string_view unit) {
  std::printf("\n%-36.*s %12.*s %10s\n", length(what), what.data(), length(unit), unit.data(), "reach");
}

void printRow(std::string_view what, double measured, Reach reach, std::string_view remark) {
  std::printf("%-36.*s %12.2f", length(what), what.data(), measured);
  if (reach.sense == Reach::Sense::anything) {
    std::printf(" %10s   %-7s", "", "");
  } else {
    const bool within = isWithin(measured, reach);
    outOfReach += within ? 0 : 1;
    std::printf(" %s %7.2f   %-7s", reach.sense == Reach::Sense::atMost ? "<=" : ">=", reach.bound,
                within ? "within" : "NOT");
  }
  std::printf(" %.*s\n", length(remark), remark.data());
}

double middleOf(std::vector<double> measures) {
  const auto middle = measures.begin() + static_cast<std::ptrdiff_t>(measures.size() / 2);
  std::ranges::nth_element(measures, middle);
  return *middle;
}

int rowsOutOfReach() { return outOfReach; }

}  // namespace kzm::bench
