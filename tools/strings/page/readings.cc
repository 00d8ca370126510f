#include "tools/strings/page/readings.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <sstream>
#include <sys/wait.h>
#include <system_error>
#include <unicode/locid.h>
#include <unistd.h>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/KZMUtilities.h>

#include "cli/words.h"
#include "machine/sensors.h"
#include "port/canonical_locale.h"

namespace kzm::strings {
namespace {

using machine::Kind;

Dictionary rule(int below, int decimals) { return {{"value", below}, {"decimals", decimals}}; }

// A space before the unit, and three digits that count.
Dictionary spaced() {
  const Value digits(Array{rule(10, 2), rule(100, 1)});
  return {{"space", true}, {"units", true}, {"off", true}, {"decimals-mb", digits}, {"decimals-gb", digits}};
}

Dictionary with(const char* key, Value value) {
  Dictionary options = spaced();
  options.set(key, std::move(value));
  return options;
}

std::string sensor(Kind kind, double value, const Dictionary& options = spaced()) {
  return KZMUtilitiesFormatSensor(static_cast<std::int64_t>(kind), options, value);
}

std::vector<Sample> samples() {
  return {
      {"network",
       {KZMUtilitiesFormatBandwidth(spaced(), 1.5e6), KZMUtilitiesFormatBandwidth(with("bandwidthformat", 2), 1.5e6),
        KZMUtilitiesFormatBandwidth(with("unitsize", 2), 2048.0),
        KZMUtilitiesFormatBandwidth(with("unitsize", 1), 1.5e6)}},
      {"disks", {KZMUtilitiesFormatDiskActivity(spaced(), 3.2e6), KZMUtilitiesFormatSpace(spaced(), 83.1e9)}},
      {"memory", {KZMUtilitiesFormatMemory(spaced(), 19.7e9), KZMUtilitiesFormatMemory(with("short", true), 1.5e9)}},
      {"sensors",
       {sensor(Kind::temperature, 48), sensor(Kind::fan, 1200), sensor(Kind::fan, 0), sensor(Kind::voltage, 12),
        sensor(Kind::current, 0.35), sensor(Kind::power, -15), sensor(Kind::frequency, 3200), sensor(Kind::light, 320),
        sensor(Kind::capacity, 4500), sensor(Kind::percentage, 0.57)}},
      {"weather",
       {KZMUtilitiesFormatWeatherTemperature(spaced(), -5), KZMUtilitiesFormatWeatherWindSpeed(spaced(), 10),
        KZMUtilitiesFormatWeatherWindDirection(45), KZMUtilitiesFormatWeatherPressure(spaced(), 1013),
        KZMUtilitiesFormatWeatherDistance(12), KZMUtilitiesFormatWeatherRainAmount(4),
        KZMUtilitiesFormatWeatherSnowAmount(20), KZMUtilitiesFormatWeatherHumidity(57),
        KZMUtilitiesFormatWeatherDays(5), KZMUtilitiesFormatWeatherIllumination(57)}},
      {"words",
       {cli::word("Topics.Network"), cli::word("Columns.received"), cli::word("Columns.sent"),
        cli::word("Topics.Memory"), cli::word("Columns.used"), cli::word("Columns.free"),
        cli::word("Topics.Temperatures"), cli::word("Topics.Battery"), cli::word("Battery.Charging")}},
  };
}

icu::Locale localeOf(std::string_view language) {
  UErrorCode status = U_ZERO_ERROR;
  return icu::Locale::forLanguageTag({language.data(), static_cast<std::int32_t>(language.size())}, status);
}

void useLanguage(const std::string& language) {
  KZMLocalizationSetLanguages({&language, 1});
  KZMSettingsUseObjects({});  // those of whoever runs this have no say
  setCurrentLocale(port::inFull(localeOf(language)).getName());
}

// A sample is a line, its texts end in tabs.
std::string written(const std::vector<Sample>& samples) {
  std::string lines;
  for (const Sample& sample : samples) {
    lines += sample.family + '\t';
    for (const std::string& text : sample.texts) lines += text + '\t';
    lines += '\n';
  }
  return lines;
}

std::vector<Sample> read(std::istream& lines) {
  std::vector<Sample> samples;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream texts(line);
    Sample& sample = samples.emplace_back();
    std::getline(texts, sample.family, '\t');
    for (std::string text; std::getline(texts, text, '\t');) sample.texts.push_back(text);
  }
  return samples;
}

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

}  // namespace

std::vector<Sample> samplesIn(const std::string& language) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) fail("pipe");
  const pid_t child = ::fork();
  if (child < 0) fail("fork");
  if (child == 0) {
    useLanguage(language);
    const std::string lines = written(samples());
    ::_exit(::write(ends[1], lines.data(), lines.size()) == static_cast<ssize_t>(lines.size()) ? 0 : 1);
  }
  ::close(ends[1]);
  std::string lines;
  std::array<char, 4096> buffer{};
  for (ssize_t count = 0; (count = ::read(ends[0], buffer.data(), buffer.size())) > 0;) {
    lines.append(buffer.data(), static_cast<std::size_t>(count));
  }
  ::close(ends[0]);
  int status = 1;
  if (::waitpid(child, &status, 0) != child || status != 0) fail("the process of a language");
  std::istringstream stream(lines);
  return read(stream);
}

}  // namespace kzm::strings
