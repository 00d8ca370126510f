// Prints nanoseconds and allocations per call, and each call's time as a ratio of the bare number conversion.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

#include <KZMUtilities/formatters.h>

namespace {

// The usual table, and behind it the ratios to the floor of the same run.
class Ratios : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) nanoseconds_[run.benchmark_name()] = run.GetAdjustedCPUTime();
    ConsoleReporter::ReportRuns(runs);
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    const double floor = nanoseconds_["floor/std::to_chars shortest"];
    const double icu = nanoseconds_["floor/ICU number formatter, 1 digit"];
    if (floor <= 0 || icu <= 0) return;
    std::printf("\n%-50s %12s %12s\n", "ratio to", "to_chars", "ICU");
    for (const auto& [name, time] : nanoseconds_) {
      std::printf("%-50s %12.2f %12.2f\n", name.c_str(), time / floor, time / icu);
    }
  }

 private:
  std::map<std::string, double> nanoseconds_;
};

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 2;
  kzm::setCurrentLocale("en_US");
  Ratios reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
