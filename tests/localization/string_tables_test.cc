// The library's own string tables as they were embedded: what is in every language, and what each one says.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/resources.h>

namespace kzm {
namespace {

const ResourceBundle* bundle() { return bundleWithIdentifier("org.kzm.utilities"); }

std::string text(std::string_view key) {
  return KZMLocalizedStringFromTableInBundle(key, "KZMUtilities", bundle(), nullptr);
}

/// The languages that have a folder in resources/, in order.
std::set<std::string> languagesOfFolders() {
  std::set<std::string> languages;
  for (const auto& folder : std::filesystem::directory_iterator(KZM_SOURCES "/resources")) {
    if (folder.path().extension() == ".lproj") languages.insert(folder.path().stem());
  }
  return languages;
}

std::vector<std::string> words(std::string_view list) {
  std::vector<std::string> found;
  while (!list.empty()) {
    const std::string_view word = list.substr(0, list.find(' '));
    found.emplace_back(word);
    list.remove_prefix(std::min(list.size(), word.size() + 1));
  }
  return found;
}

TEST(StringTables, AreFoundByTheirIdentifierAlone) {
  ASSERT_NE(bundle(), nullptr);
  EXPECT_EQ(bundle()->identifier, kBundleIdentifier);
  EXPECT_EQ(bundle()->developmentLanguage, "en");
  for (const char* other : {"", "org.kzm", "org.kzm.utilities.", "org.kzm.Utilities"}) {
    EXPECT_EQ(bundleWithIdentifier(other), nullptr) << other;
  }
}

TEST(StringTables, ThereIsOneForEveryFolder) {
  std::map<std::string_view, std::set<std::string>> languages;
  for (const StringTable& table : bundle()->tables) {
    EXPECT_TRUE(languages[table.name].emplace(table.language).second) << table.name << ' ' << table.language;
  }
  EXPECT_EQ(languages.size(), 2U);
  EXPECT_EQ(languages["KZMUtilities"], languagesOfFolders());
  EXPECT_TRUE(std::ranges::includes(languages["KZMUtilities"], languages["Words"]));
}

TEST(StringTables, EveryLanguageIsInTheDocuments) {
  std::ifstream file(KZM_SOURCES "/docs/languages.md");
  const std::string document{std::istreambuf_iterator<char>(file), {}};
  for (const std::string& language : languagesOfFolders()) {
    EXPECT_NE(document.find("`" + language + "`"), std::string::npos) << language;
  }
}

TEST(StringTables, EveryLanguageHasTheRowsOfTheEnglishTable) {
  for (const StringTable& table : bundle()->tables) {
    const auto isEnglish = [&table](const StringTable& other) {
      return other.language == "en" && other.name == table.name;
    };
    const auto english = std::ranges::find_if(bundle()->tables, isEnglish);
    ASSERT_NE(english, bundle()->tables.end()) << table.name;
    ASSERT_FALSE(english->keys.empty()) << table.name;
    EXPECT_EQ(table.keys, english->keys) << table.name << " " << table.language;
    EXPECT_EQ(std::ranges::count(table.texts, '\0'), std::ranges::count(table.keys, '\0')) << table.language;
  }
}

TEST(StringTables, EnglishTextsAreTheTemplates) {
  KZMLocalizationSetLanguages(std::vector<std::string>{"en_US"});
  EXPECT_EQ(text("Units.Network.%@ G"), "%@ G");
  EXPECT_EQ(text("Units.Activity.%@KB/s"), "%@KB/s");
  EXPECT_EQ(text("Units.Space.%@ PB"), "%@ PB");
  EXPECT_EQ(text("Units.Memory.%@T"), "%@T");
  EXPECT_EQ(text("Units.Sensors.%@°"), "%@°");
  EXPECT_EQ(text("Units.Sensors.Off"), "Off");
  EXPECT_EQ(text("Units.Weather.%@\""), "%@\"");
  EXPECT_EQ(text("Units.Weather.%@%%"), "%@%%");
  EXPECT_EQ(text("Units.Weather.South West"), "South West");
}

struct TextCase {
  const char* languages;  // one or more, separated by spaces
  const char* key;
  const char* text;
};

constexpr TextCase kTexts[] = {
    {"de_CH", "Units.Weather.North East", "Nordosten"},
    {"de_AT", "Units.Sensors.%@ rpm", "%@ U/min"},
    {"fr_FR", "Units.Network.%@ G", "%@ G"},
    {"fr_FR", "Units.Network.%@KB/s", "%@Ko/s"},
    {"fr_CA", "Units.Network.%@ Mb/s", "%@ Mbit/s"},
    {"fr_FR", "Units.Space.%@PB", "%@Po"},
    {"fr_FR", "Units.Weather.%@ knots", "%@ nd"},
    {"fr_FR", "Units.Weather.North East", "Nord-Est"},
    {"fi_FI", "Units.Memory.%@ KB", "%@ Kt"},
    {"fi_FI", "Units.Weather.South East", "Kaakko"},
    {"ru_RU", "Units.Network.%@ Kb/s", "%@ Кбит/с"},
    {"ru_RU", "Units.Activity.%@MB/s", "%@МБ/с"},
    {"ru_RU", "Units.Space.%@T", "%@Т"},
    {"ru_RU", "Units.Sensors.%@ mAh", "%@ мА·ч"},
    {"uk_UA", "Units.Weather.%@km/h", "%@км/год"},
    {"bg_BG", "Units.Space.%@ GB", "%@ ГБ"},
    {"no_NO", "Units.Weather.North East", "Nordøst"},
    {"nn_NO", "Units.Weather.%@ Days", "%@ døgn"},
    {"nb_NO", "Units.Weather.%@ km/h", "%@ km/t"},
    {"da_DK", "Units.Network.%@Gb/s", "%@Gbit/s"},
    {"sr_RS", "Units.Weather.North East", "Североисток"},
    {"sr_RS@latin", "Units.Weather.North East", "Severoistok"},
    {"sr_Latn_RS", "Units.Weather.North East", "Severoistok"},
    {"pt_BR", "Units.Weather.East", "Leste"},
    {"pt_PT", "Units.Weather.East", "Este"},
    {"pt_AO", "Units.Weather.East", "Este"},
    {"zh_CN", "Units.Weather.%@ m/s", "%@ 米/秒"},
    {"zh_TW", "Units.Weather.%@ m/s", "%@ 公尺/秒"},
    {"zh_HK", "Units.Sensors.Off", "關閉"},
    {"zh_SG", "Units.Sensors.Off", "关闭"},
    {"ja_JP", "Units.Activity.%@ MB/s", "%@ MB/s"},
    {"ko_KR", "Units.Weather.%@ miles", "%@ 마일"},
    {"tr_TR", "Units.Weather.%@%%", "%%%@"},
    {"he_IL", "Units.Weather.%@ km/h", "%@ קמ״ש"},
    {"iw_IL", "Units.Weather.North", "צפון"},
    {"ar_EG", "Units.Memory.%@ MB", "%@ ميغابايت"},
    {"ar_EG", "Units.Network.%@ Mb", "%@ ميغابت"},
    {"fa_IR", "Units.Space.%@ GB", "%@ گیگابایت"},
    {"hi_IN@numbers=deva", "Units.Weather.%@mm", "%@मि॰मी॰"},
    {"es_419", "Units.Weather.North West", "Noroeste"},
    {"el_GR", "Units.Weather.%@ m/s", "%@ m/s"},
    {"de_DE", "Units.Network.%@ Mb/s", "%@ Mbit/s"},
    {"sv_SE", "Units.Network.%@Kb", "%@Kbit"},
    {"ru_RU", "Units.Weather.%@ knots", "%@ уз"},
    {"pl_PL", "Units.Sensors.Off", "Wył"},
    {"pl_PL", "Units.Sensors.%@ rpm", "%@ obr/min"},
    {"ar_EG", "Units.Sensors.%@ mAh", "%@ ملي أمبير ساعة"},
    {"ar_EG", "Units.Weather.%@%%", "%@٪"},
    {"fa_IR", "Units.Weather.%@%%", "%@٪"},
    {"fr_FR", "Units.Weather.%@%%", "%@\u00A0%%"},
    {"eu_ES", "Units.Weather.%@%%", "%%\u00A0%@"},
    {"zh_HK", "Units.Weather.%@ m/s", "%@ 米/秒"},
    {"zh_MO", "Units.Weather.%@cm", "%@厘米"},
    {"zh_HK", "Units.Weather.North East", "東北"},
    {"zh_TW", "Units.Weather.%@cm", "%@公分"},
    {"pt_PT", "Units.Sensors.Off", "Desligada"},
    {"pt_PT", "Units.Weather.North", "Norte"},
    {"de_CH", "Units.Weather.%@%%", "%@%%"},
    {"de_AT", "Units.Weather.%@%%", "%@\u00A0%%"},
    {"fr_CH", "Units.Weather.%@%%", "%@%%"},
    {"fr_CA", "Units.Weather.%@\"", "%@po"},
    {"fr_BE", "Units.Weather.%@\"", "%@\""},
    {"ar_MA", "Units.Weather.%@%%", "%@%%"},
    {"ar_TN", "Units.Weather.%@%%", "%@%%"},
    {"ar_AE", "Units.Weather.%@%%", "%@%%"},
    {"ar_SA", "Units.Weather.%@%%", "%@٪"},
    {"en_GB", "Units.Weather.%@ miles", "%@ miles"},
    {"nn_NO", "Units.Weather.North East", "Nordaust"},
    {"be_BY", "Units.Network.%@ Mb/s", "%@ Мбіт/с"},
    {"kk_KZ", "Units.Space.%@ MB", "%@ МБ"},
    {"ky_KG", "Units.Weather.%@ km/h", "%@ км/саат"},
    {"ka_GE", "Units.Network.%@ Mb/s", "%@ მბიტი/წმ"},
    {"hy_AM", "Units.Sensors.%@ V", "%@ Վ"},
    {"mn_MN", "Units.Weather.North", "Хойд"},
    {"ta_IN", "Units.Weather.South West", "தென்மேற்கு"},
    {"pa_IN", "Units.Weather.East", "ਪੂਰਬ"},
    {"si_LK", "Units.Memory.%@ MB", "මෙබ %@"},
    {"si_LK", "Units.Memory.%@MB", "මෙබ%@"},
    {"sw_KE", "Units.Network.%@ KB/s", "KB/s %@"},
    {"tk_TM", "Units.Sensors.%@ W", "%@ W"},
    {"mk_MK", "Units.Weather.%@%%", "%@\u00A0%%"},
    {"fil_PH", "Units.Weather.%@ Days", "%@ araw"},
    {"tl_PH", "Units.Weather.%@ Days", "%@ araw"},
    {"xx fr", "Units.Weather.West", "Ouest"},
    {"gsw_CH", "Units.Weather.%@ Days", "%@ Tg."},
    {"xx", "Units.Weather.West", "West"},
    {"C", "Units.Weather.West", "West"},
};

TEST(StringTables, SayInEachLanguageWhatItsReadersExpect) {
  for (const TextCase& test : kTexts) {
    KZMLocalizationSetLanguages(words(test.languages));
    EXPECT_EQ(text(test.key), test.text) << test.languages << " " << test.key;
  }
}

}  // namespace
}  // namespace kzm
