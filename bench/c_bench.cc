// The byte families through the C library, each beside the C++ call of the same name: the options as a text, the result
// as a text that is given back.
#include <memory>
#include <string>
#include <vector>

#include "bench/allocations.h"
#include "c/kzm.h"

namespace kzm::bench {
namespace {

using Text = std::unique_ptr<char, void (*)(void*)>;

constexpr const char* kNetwork =
    "{\"bandwidthformat\": 2, \"space\": true, \"unitsize\": 3,"
    " \"decimals-mb\": [{\"value\": 10, \"decimals\": 2}, {\"value\": 100, \"decimals\": 1}],"
    " \"decimals-kb\": [{\"value\": 10, \"decimals\": 2}, {\"value\": 100, \"decimals\": 1}]}";
constexpr const char* kSize = "{\"space\": true, \"decimals-gb\": [{\"value\": 100, \"decimals\": 1}]}";

// The options of an ordinary network display, in two styles.
std::string styledNetwork() {
  const std::string options(kNetwork);
  return options.substr(0, options.size() - 1) + ", \"attributes-main\": \"bold\", \"attributes-units\": \"gray\"}";
}

void bandwidth(benchmark::State& state) {
  double rate = 1500000.0;
  measure(state, [&] {
    benchmark::DoNotOptimize(rate);
    return Text(kzm_format_bandwidth(kNetwork, rate), kzm_free);
  });
}
BENCHMARK(bandwidth)->Name("c/bandwidth");

void bandwidthPlainOptions(benchmark::State& state) {
  measure(state, [] { return Text(kzm_format_bandwidth(nullptr, 1500000.0), kzm_free); });
}
BENCHMARK(bandwidthPlainOptions)->Name("c/bandwidth, no options");

void bandwidthData(benchmark::State& state) {
  measure(state, [] { return Text(kzm_bandwidth_data(kNetwork, 1500000.0), kzm_free); });
}
BENCHMARK(bandwidthData)->Name("c/bandwidth, data");

void bandwidthAttributed(benchmark::State& state) {
  const std::string options = styledNetwork();
  measure(state, [&] { return Text(kzm_format_bandwidth_with_attributes(options.c_str(), 1500000.0), kzm_free); });
}
BENCHMARK(bandwidthAttributed)->Name("c/bandwidth, attributed");

void diskActivity(benchmark::State& state) {
  measure(state, [] { return Text(kzm_format_disk_activity(kNetwork, 3500000.0), kzm_free); });
}
BENCHMARK(diskActivity)->Name("c/disk activity");

void memory(benchmark::State& state) {
  measure(state, [] { return Text(kzm_format_memory(kSize, 8.4e9), kzm_free); });
}
BENCHMARK(memory)->Name("c/memory");

void diskSpace(benchmark::State& state) {
  measure(state, [] { return Text(kzm_format_space(kSize, 2.5e10), kzm_free); });
}
BENCHMARK(diskSpace)->Name("c/disk space");

// A panel has several texts of options, which come in turn.
void manyOptions(benchmark::State& state) {
  std::vector<std::string> options(16);
  for (std::size_t i = 0; i < options.size(); ++i) options[i] = "{\"space\": true, \"n\": " + std::to_string(i) + "}";
  for (const std::string& text : options) Text(kzm_format_memory(text.c_str(), 8.4e9), kzm_free);
  std::size_t next = 0;
  measure(state, [&] { return Text(kzm_format_memory(options[next++ % options.size()].c_str(), 8.4e9), kzm_free); });
}
BENCHMARK(manyOptions)->Name("c/memory, sixteen texts of options in turn");

void newOptions(benchmark::State& state) {
  std::size_t number = 0;
  measure(state, [&] {
    const std::string options = "{\"space\": true, \"number\": " + std::to_string(number++) + "}";
    return Text(kzm_format_memory(options.c_str(), 8.4e9), kzm_free);
  });
}
BENCHMARK(newOptions)->Name("c/memory, another text of options each time");

}  // namespace
}  // namespace kzm::bench
