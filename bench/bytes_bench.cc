// The byte families in the steady state: every refresh of a monitor pays this for each reading it shows.
#include <KZMUtilities/bytes.h>
#include <KZMUtilities/shared.h>

#include "bench/allocations.h"

namespace kzm::bench {
namespace {

Value rule(double bound, int decimals) { return Dictionary{{"value", bound}, {"decimals", decimals}}; }

// The options of an ordinary network display.
Dictionary networkOptions() {
  const Value rules = Array{rule(10, 2), rule(100, 1)};
  return {{"bandwidthformat", 2}, {"space", true}, {"unitsize", 3}, {"decimals-mb", rules}, {"decimals-kb", rules}};
}

Dictionary sizeOptions() { return {{"space", true}, {"decimals-gb", Array{rule(100, 1)}}}; }

void bandwidth(benchmark::State& state) {
  const Dictionary options = networkOptions();
  double rate = 1500000.0;
  measure(state, [&] {
    benchmark::DoNotOptimize(rate);
    return KZMUtilitiesFormatBandwidth(options, rate);
  });
}
BENCHMARK(bandwidth)->Name("bytes/bandwidth");

void bandwidthPlainOptions(benchmark::State& state) {
  const Dictionary options;
  double rate = 1500000.0;
  measure(state, [&] {
    benchmark::DoNotOptimize(rate);
    return KZMUtilitiesFormatBandwidth(options, rate);
  });
}
BENCHMARK(bandwidthPlainOptions)->Name("bytes/bandwidth, no options");

void bandwidthData(benchmark::State& state) {
  const Dictionary options = networkOptions();
  measure(state, [&] { return KZMUtilitiesBandwidthData(options, 1500000.0); });
}
BENCHMARK(bandwidthData)->Name("bytes/bandwidth, data");

void bandwidthAttributed(benchmark::State& state) {
  Dictionary options = networkOptions();
  options.set("attributes-main", "bold");
  options.set("attributes-units", "gray");
  measure(state, [&] { return KZMUtilitiesFormatBandwidthWithAttributes(options, 1500000.0); });
}
BENCHMARK(bandwidthAttributed)->Name("bytes/bandwidth, attributed");

void diskActivity(benchmark::State& state) {
  const Dictionary options = networkOptions();
  measure(state, [&] { return KZMUtilitiesFormatDiskActivity(options, 3500000.0); });
}
BENCHMARK(diskActivity)->Name("bytes/disk activity");

void memory(benchmark::State& state) {
  const Dictionary options = sizeOptions();
  measure(state, [&] { return KZMUtilitiesFormatMemory(options, 8.4e9); });
}
BENCHMARK(memory)->Name("bytes/memory");

void diskSpace(benchmark::State& state) {
  const Dictionary options = sizeOptions();
  measure(state, [&] { return KZMUtilitiesFormatSpace(options, 2.5e10); });
}
BENCHMARK(diskSpace)->Name("bytes/disk space");

void firstCall(benchmark::State& state) {
  for (auto _ : state) {
    KZMUtilities::shared().setCache(nullptr);
    benchmark::DoNotOptimize(KZMUtilitiesFormatBandwidth({}, 1500000.0));
  }
}
BENCHMARK(firstCall)->Name("bytes/bandwidth, first call on an empty cache");

}  // namespace
}  // namespace kzm::bench
