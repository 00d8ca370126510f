// What was measured beside what is to be reached.
#ifndef KZM_BENCH_REPORT_H
#define KZM_BENCH_REPORT_H

#include <string_view>
#include <vector>

namespace kzm::bench {

/// What a measure is to be: at most or at least this, or anything.
struct Reach {
  enum class Sense { anything, atMost, atLeast };
  Sense sense = Sense::anything;
  double bound = 0.0;
};

[[nodiscard]] constexpr Reach atMost(double bound) { return {Reach::Sense::atMost, bound}; }
[[nodiscard]] constexpr Reach atLeast(double bound) { return {Reach::Sense::atLeast, bound}; }

/// Begins a part of the table: what is measured, and in what.
void printHeading(std::string_view what, std::string_view unit);
/// One row of it.
void printRow(std::string_view what, double measured, Reach reach = {}, std::string_view remark = {});

/// The middle one of several measures.
[[nodiscard]] double middleOf(std::vector<double> measures);

/// How many rows were out of reach so far.
[[nodiscard]] int rowsOutOfReach();

}  // namespace kzm::bench

#endif
