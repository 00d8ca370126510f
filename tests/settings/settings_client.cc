// Another process that uses the settings, for the tests: settings_client set PREFIX COUNT, holds KEY NUMBER, or memory
#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

#include <KZMSettings/KZMSettings.h>

namespace {

bool setMany(const std::string& prefix, int count) {
  bool done = true;
  for (int i = 0; i < count; ++i) done = KZMSettingsSetObjectForKeyPath(i, prefix + std::to_string(i)) && done;
  return done;
}

bool holds(const std::string& key, std::int64_t number) {
  const kzm::Value value = KZMSettingsObjectForKeyPath(key);
  return value.integer() != nullptr && *value.integer() == number;
}

bool staysInMemory() {
  KZMSettingsUseObjects({{"in memory", 1}});
  return KZMSettingsSetObjectForKeyPath(2, "also") && holds("in memory", 1) && holds("also", 2) &&
         KZMSettingsObjects().size() == 2;
}

// Asks when every destructor of the program's own has run or is running.
struct LastWords {
  ~LastWords() {
    if (holds("in memory", 1)) std::cout << "still there\n" << std::flush;
  }
};

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  static const LastWords kLastWords;
  if (words.size() == 3 && words[0] == "set") return setMany(words[1], std::stoi(words[2])) ? 0 : 1;
  if (words.size() == 3 && words[0] == "holds") return holds(words[1], std::stoll(words[2])) ? 0 : 1;
  if (words.size() == 1 && words[0] == "memory") return staysInMemory() ? 0 : 1;
  return 2;
}
