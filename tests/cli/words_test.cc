// The program's own words: those that its sources ask for are the rows of the table.
#include "cli/words.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>

namespace kzm::cli {
namespace {

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

void addMatches(const std::string& content, const char* pattern, std::set<std::string>& found) {
  const std::regex expression(pattern);
  for (std::sregex_iterator match(content.begin(), content.end(), expression), end; match != end; ++match) {
    found.insert((*match)[1]);
  }
}

/// The words that the sources name, as the argument of word() or as a constant that is given to it later.
std::set<std::string> wordsInSources() {
  std::set<std::string> found;
  for (const char* folder : {"/cli/show", "/cli/monitor", "/examples/panel"}) {
    for (const auto& file : std::filesystem::directory_iterator(KZM_SOURCES + std::string(folder))) {
      addMatches(contentOf(file.path()), R"re("((?:Topics|Columns|Rows|Load|Keys)\.[^"]+)")re", found);
    }
  }
  return found;
}

std::set<std::string> wordsInTable() {
  std::set<std::string> found;
  const std::string table = contentOf(KZM_SOURCES "/resources/en.lproj/Words.strings");
  addMatches(table, R"re("Words\.((?:Topics|Columns|Rows|Load|Keys)\.[^"]+)" =)re", found);
  return found;
}

TEST(Words, ThoseInTheSourcesAreThoseOfTheTable) { EXPECT_EQ(wordsInSources(), wordsInTable()); }

TEST(Words, AreInTheUsersLanguage) {
  struct Case {
    const char* language;
    const char* key;
    const char* text;
  };
  const Case cases[] = {
      {"en", "Topics.Network", "Network"},         {"de_CH", "Topics.Network", "Netzwerk"},
      {"pt_PT", "Battery.Charging", "A carregar"}, {"pt_PT", "Battery.Full", "Cheia"},
      {"zh_HK", "Topics.Network", "網絡"},         {"sw", "Load.%@ min", "dakika %@"},
      {"de", "Battery.Unknown", "Unknown"},        {"de", "Battery.1.5 V", "1.5 V"},
      {"oc", "Topics.Fans", "Ventilateurs"},
  };
  for (const Case& test : cases) {
    KZMLocalizationSetLanguages(std::vector<std::string>{test.language});
    EXPECT_EQ(word(test.key), test.text) << test.language;
  }
  KZMLocalizationSetLanguages({});
}

}  // namespace
}  // namespace kzm::cli
