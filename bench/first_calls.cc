// The first call of a process: what loading the program does not do yet.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/weather.h>

#include "bench/parts.h"
#include "bench/pass.h"
#include "bench/report.h"

namespace kzm::bench {
namespace {

struct FirstCall {
  const char* name;
  std::string (*text)();
};
constexpr FirstCall kFirstCalls[] = {
    {"bandwidth", [] { return KZMUtilitiesFormatBandwidth({}, 1500000.0); }},
    {"memory", [] { return KZMUtilitiesFormatMemory({}, 8.4e9); }},
    {"percentage", [] { return KZMUtilitiesFormatPercentage({}, 42.0); }},
    {"sensor",
     [] {
       return KZMUtilitiesFormatSensor(SensorType::fan, {{"units", true}}, 1200.0);
     }},
    {"weather",
     [] {
       return KZMUtilitiesFormatWeatherTemperature({{"units", true}}, 21.6);
     }},
};

double microsecondsIn(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose);
  std::array<char, 64> text{};
  if (!output || std::fgets(text.data(), text.size(), output.get()) == nullptr) return 0.0;
  return std::atof(text.data());
}

}  // namespace

void measureFirstCalls(const char* program) {
  constexpr std::size_t kProcesses = 15;
  printHeading("First text of a process", "ms");
  for (std::size_t number = 0; number < std::size(kFirstCalls); ++number) {
    const std::string command = std::string("'") + program + "' --first " + std::to_string(number);
    std::vector<double> times(kProcesses);
    for (double& time : times) time = microsecondsIn(command);
    printRow(kFirstCalls[number].name, middleOf(times) / 1e3, atMost(1.0));
  }
}

void makeFirstCall(std::size_t number) {
  const double start = threadTime();
  keep(kFirstCalls[std::min(number, std::size(kFirstCalls) - 1)].text());
  std::printf("%.1f\n", (threadTime() - start) / 1e3);
}

}  // namespace kzm::bench
