// Prints batch lines for `kzmutil call --batch` with odd arguments, most of them well-formed, some not:
//   kzmutil list | random_calls COUNT [SEED]
//
// Whatever comes in, each line must be answered by one line, without a crash, a hang or a sanitizer's report.
#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::mt19937_64 randomness;

std::size_t below(std::size_t count) { return static_cast<std::size_t>(randomness() % count); }

template <std::size_t N>
const char* any(const char* const (&choices)[N]) {
  return choices[below(N)];
}

constexpr const char* kDoubles[] = {"0",
                                    "-0.0",
                                    "0.5",
                                    "-0.3",
                                    "1",
                                    "2.5",
                                    "42.25",
                                    "99.6",
                                    "999",
                                    "999.5",
                                    "1000",
                                    "1023.6",
                                    "1024",
                                    "1048575",
                                    "1048576",
                                    "1048577",
                                    "1e6",
                                    "1e9",
                                    "1073741823",
                                    "1073741824",
                                    "1e12",
                                    "1e15",
                                    "1.5e15",
                                    "1e22",
                                    "1e300",
                                    "-1e300",
                                    "1.7976931348623157e308",
                                    "5e-324",
                                    "-5e-324",
                                    "1e-7",
                                    "\"NaN\"",
                                    "\"Infinity\"",
                                    "\"-Infinity\"",
                                    "273.15",
                                    "-273.15",
                                    "1013.25",
                                    "22.5",
                                    "337.5",
                                    "1700000000",
                                    "-62135596800",
                                    "1.5e13",
                                    "-1.5e11",
                                    "9007199254740993",
                                    "123456789.125",
                                    "-1.0",
                                    "1e19"};
constexpr const char* kIntegers[] = {"0",
                                     "1",
                                     "2",
                                     "3",
                                     "4",
                                     "5",
                                     "6",
                                     "7",
                                     "8",
                                     "9",
                                     "10",
                                     "16",
                                     "28",
                                     "100",
                                     "340",
                                     "341",
                                     "-1",
                                     "-28",
                                     "4096",
                                     "65535",
                                     "2147483648",
                                     "9223372036854775807",
                                     "-9223372036854775808"};
constexpr const char* kStrings[] = {"\"\"",
                                    "\"%@\"",
                                    "\"%@ %@ %%\"",
                                    "\"%n%s%d\"",
                                    "\"KZMUtilities\"",
                                    "\"Units.Network.%@ G\"",
                                    "\"Units.Weather.North\"",
                                    "\"(a+)+$\"",
                                    "\"(\\\\d+)\"",
                                    "\"(a)?bc\"",
                                    "\"[\"",
                                    "\"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!\"",
                                    "\"ab12 Äpfel \\u0000 °\"",
                                    "\"\\ud83d\\ude00\"",
                                    "\"2\"",
                                    "\" -3.5e1\"",
                                    "\"yes\"",
                                    "\"1e999\""};
constexpr const char* kLocales[] = {"\"en_US\"",      "\"de_CH\"", "\"\"",      "\"ar_EG@numbers=latn\"",
                                    "\"zh_Hant_TW\"", "\"x\"",     "\"../..\"", "\"C\""};
constexpr const char* kZones[] = {
    "\"UTC\"", "\"Europe/Paris\"",    "\"America/New_York\"", "\"Asia/Kathmandu\"", "\"Pacific/Apia\"", "\"No/Where\"",
    "\"\"",    "\"../../etc/passwd\""};
constexpr const char* kKeys[] = {"bandwidthformat",
                                 "reverse-type",
                                 "unitsize",
                                 "short",
                                 "space",
                                 "early-upgrade",
                                 "decimals",
                                 "decimals-kb",
                                 "decimals-mb",
                                 "decimals-gb",
                                 "decimals-tb",
                                 "decimals-pb",
                                 "decimals-amperage",
                                 "decimals-power",
                                 "decimals-voltage",
                                 "decimals-frequency",
                                 "attributes-main",
                                 "attributes-units",
                                 "hide-bytes",
                                 "units",
                                 "reverse",
                                 "off",
                                 "strip",
                                 "",
                                 "unknown"};
constexpr const char* kSettings[] = {"Weather.Global.Units.WindSpeed", "Sensors.Global.Degrees.Format",
                                     "Weather.Global.Units.Degrees",   "Weather.Global.Units.Distance",
                                     "Weather.Global.Units.Pressure",  "Weather.Global.Units.Precipitation"};
constexpr const char* kBroken[] = {"",
                                   "{",
                                   "null",
                                   "[]",
                                   "{\"call\": 5}",
                                   "{\"call\": \"mpsToKph\"}",
                                   "{\"call\": \"mpsToKph\", \"args\": 7}",
                                   "{\"id\": {\"a\": [1]}, \"call\": \"nope\", \"args\": []}",
                                   "\xff\xfe",
                                   "{\"settings\": 3, \"call\": \"rainUnit\"}"};

std::string value(int depth);

std::string rules() {
  std::string text = "[";
  for (std::size_t i = below(4); i > 0; --i) {
    text += below(8) == 0 ? value(0)
                          : std::string("{\"value\": ") + any(kDoubles) + ", \"decimals\": " + any(kIntegers) + "}";
    text += i > 1 ? ", " : "";
  }
  return text + "]";
}

std::string value(int depth) {
  switch (below(depth > 2 ? 6 : 8)) {
    case 0:
      return "null";
    case 1:
      return below(2) == 0 ? "true" : "false";
    case 2:
      return any(kIntegers);
    case 3:
      return any(kDoubles);
    case 4:
      return any(kStrings);
    case 5:
      return rules();
    case 6:
      return "[" + value(depth + 1) + ", " + value(depth + 1) + "]";
    default:
      return "{\"a\": " + value(depth + 1) + "}";
  }
}

std::string dictionary() {
  if (below(12) == 0) return "null";
  std::string text = "{";
  for (std::size_t i = below(7); i > 0; --i) {
    const std::string key = any(kKeys);
    const bool isRules = key.starts_with("decimals-") && below(5) != 0;
    text += "\"" + key + "\": " + (isRules ? rules() : value(0)) + (i > 1 ? ", " : "");
  }
  return text + "}";
}

std::string argument(const std::string& kind) {
  if (below(60) == 0) return value(0);
  if (kind == "double") return any(kDoubles);
  if (kind == "integer" || kind == "units") return any(kIntegers);
  if (kind == "time|null") return below(10) == 0 ? "null" : any(kDoubles);
  if (kind == "dictionary") return dictionary();
  if (kind == "locale") return any(kLocales);
  if (kind == "timezone") return any(kZones);
  if (kind == "attributedstring") {
    return std::string("{\"runs\": [{\"text\": ") + any(kStrings) + ", \"attributes\": " + value(0) +
           "}, {\"text\": " + any(kStrings) + "}]}";
  }
  if (kind == "attributes") return value(0);
  return any(kStrings);
}

// A line of `kzmutil list`: the name, then "parameter:kind" for each parameter. Selectors hold colons, kinds do not.
std::string call(const std::string& listed) {
  std::istringstream words(listed);
  std::string name;
  words >> name;
  std::string text = "{\"call\": \"" + name + "\", \"args\": [";
  std::string separator;
  for (std::string word; words >> word; separator = ", ") {
    text += separator + argument(word.substr(word.rfind(':') + 1));
  }
  text += below(100) == 0 ? ", 1]" : "]";
  if (below(10) == 0) text += std::string(", \"settings\": {\"") + any(kSettings) + "\": " + value(0) + "}";
  return text + ", \"id\": " + std::to_string(below(1000)) + "}";
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::cerr << "usage: kzmutil list | random_calls COUNT [SEED]\n";
    return 2;
  }
  randomness.seed(count > 2 ? std::strtoull(arguments[2], nullptr, 10) : 1);
  std::vector<std::string> listed;
  for (std::string line; std::getline(std::cin, line);) listed.push_back(line);
  for (auto left = std::strtoull(arguments[1], nullptr, 10); left > 0; --left) {
    std::cout << (below(200) == 0 || listed.empty() ? any(kBroken) : call(listed[below(listed.size())])) << '\n';
  }
}
