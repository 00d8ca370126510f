// Prints nanoseconds and allocations per call, and each call's time as a ratio of the bare number conversion.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

#include <KZMUtilities/formatters.h>

namespace {

// The usual table, and after it the ratios within the same run: of the least times, when there are repetitions.
class Ratios : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const auto [time, isNew] = nanoseconds_.try_emplace(run.benchmark_name(), run.GetAdjustedCPUTime());
      if (!isNew) time->second = std::min(time->second, run.GetAdjustedCPUTime());
    }
    ConsoleReporter::ReportRuns(runs);
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    printRatiosOfC();
    const double floor = nanoseconds_["floor/std::to_chars shortest"];
    const double icu = nanoseconds_["floor/ICU number formatter, 1 digit"];
    if (floor <= 0 || icu <= 0) return;
    std::printf("\n%-50s %12s %12s\n", "ratio to", "to_chars", "ICU");
    for (const auto& [name, time] : nanoseconds_) {
      std::printf("%-50s %12.2f %12.2f\n", name.c_str(), time / floor, time / icu);
    }
  }

 private:
  // What C adds: each call beside the C++ call of the same name.
  void printRatiosOfC() {
    std::printf("\n%-50s %12s\n", "ratio to", "C++");
    for (const auto& [name, time] : nanoseconds_) {
      const auto cpp = name.starts_with("c/") ? nanoseconds_.find("bytes/" + name.substr(2)) : nanoseconds_.end();
      if (cpp != nanoseconds_.end()) std::printf("%-50s %12.2f\n", name.c_str(), time / cpp->second);
    }
  }

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
