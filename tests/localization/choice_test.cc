// How a text is found: the language that serves best, key by key, with a small bundle of the test's own.
#include <array>
#include <barrier>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>

namespace kzm {
namespace {

// The French table lacks a key of the English one, and has one that is not there.
constexpr char kCats[] = "Units.Test.%@ cats\0";
constexpr char kCatsAndDogs[] = "Units.Test.%@ cats\0Units.Test.%@ dogs\0";
constexpr char kBirdsAndCats[] = "Units.Test.%@ birds\0Units.Test.%@ cats\0";

template <std::size_t N>
constexpr std::string_view list(const char (&entries)[N]) {
  return {entries, N - 1};
}

constexpr StringTable kTables[] = {
    {"de", "Animals", list(kCatsAndDogs), list("%@ Katzen\0%@ Hunde\0")},
    {"en", "Animals", list(kCatsAndDogs), list("%@ cats\0%@ dogs\0")},
    {"en", "Other", list(kCats), list("%@ felines\0")},
    {"fr", "Animals", list(kBirdsAndCats), list("%@ oiseaux\0%@ chats\0")},
};
constexpr StringTable kEnglishAndRussian[] = {
    {"en", "Animals", list(kCats), list("%@ cats\0")},
    {"ru", "Animals", list(kCats), list("%@ кошек\0")},
};
constexpr ResourceBundle kBundle{"org.kzm.tests", "en", kTables};
constexpr ResourceBundle kEmptyBundle{"org.kzm.empty", "en", {}};
constexpr ResourceBundle kGermanBundle{"org.kzm.german", "de", kTables};
constexpr ResourceBundle kRussianBundle{"org.kzm.russian", "en", kEnglishAndRussian};
constexpr ResourceBundle kOddBundle{"org.kzm.odd", "xx", kTables};

void want(const std::vector<std::string>& languages) { KZMLocalizationSetLanguages(languages); }

std::string text(std::string_view key, std::string_view table = "Animals", const ResourceBundle* bundle = &kBundle) {
  return KZMLocalizedStringFromTableInBundle(key, table, bundle, "a hint");
}

TEST(Localization, MissingKeysComeOneByOneFromTheDevelopmentLanguage) {
  want({"fr_FR"});
  EXPECT_EQ(text("Units.Test.%@ cats"), "%@ chats");
  EXPECT_EQ(text("Units.Test.%@ dogs"), "%@ dogs");
  EXPECT_EQ(text("Units.Test.%@ birds"), "%@ oiseaux");
  want({"de_DE"});
  EXPECT_EQ(text("Units.Test.%@ birds"), "%@ birds");
}

TEST(Localization, EveryTableHasItsOwnLanguages) {
  want({"fr_FR"});
  EXPECT_EQ(text("Units.Test.%@ cats", "Other"), "%@ felines");
  EXPECT_EQ(text("Units.Test.%@ cats", "Animals"), "%@ chats");
}

TEST(Localization, EveryBundleHasItsOwnDevelopmentLanguage) {
  want({"ja_JP"});
  EXPECT_EQ(text("Units.Test.%@ cats", "Animals", &kBundle), "%@ cats");
  EXPECT_EQ(text("Units.Test.%@ cats", "Animals", &kGermanBundle), "%@ Katzen");
  EXPECT_EQ(text("Units.Test.%@ cats", "Animals", &kOddBundle), "%@ cats") << "no such table: the template";
}

TEST(Localization, WantedLanguagesAreTriedInOrderAndReplaceEarlierOnes) {
  want({"xx", "fr", "de"});
  EXPECT_EQ(text("Units.Test.%@ cats"), "%@ chats");
  want({"de-CH", "fr"});
  EXPECT_EQ(text("Units.Test.%@ cats"), "%@ Katzen");
  want({});
  EXPECT_EQ(text("Units.Test.%@ cats"), "%@ cats");
  want({"", "C", "../../x", "garbage!!", std::string(100000, 'x'), "\xFF\xFE"});
  EXPECT_EQ(text("Units.Test.%@ cats"), "%@ cats");
}

// Uzbek in Latin letters: those who know it know Russian, but the list does not say that they read it.
TEST(Localization, ANearLanguageServesOnlyReadersOfItsLetters) {
  want({"uz"});
  EXPECT_EQ(text("Units.Test.%@ cats", "Animals", &kRussianBundle), "%@ cats");
  want({"uz", "sr"});
  EXPECT_EQ(text("Units.Test.%@ cats", "Animals", &kRussianBundle), "%@ cats") << "Cyrillic letters, but for Serbian";
  want({"uz", "sr", "ru"});
  EXPECT_EQ(text("Units.Test.%@ cats", "Animals", &kRussianBundle), "%@ кошек");
}

struct TemplateCase {
  const char* why;
  std::string_view key;
  std::string_view text;
};

constexpr TemplateCase kTemplates[] = {
    {"a family's prefix", "Units.Network.%@ zz", "%@ zz"},
    {"any letters", "Units.aZ.%@", "%@"},
    {"only the first prefix", "Units.A.Units.B.%@", "Units.B.%@"},
    {"a point in the template", "Units.A.%@ a.b", "%@ a.b"},
    {"nothing after the prefix", "Units.A.", ""},
    {"no family", "Units..%@", "Units..%@"},
    {"digits are no family", "Units.A1.%@", "Units.A1.%@"},
    {"no end of the family", "Units.Network", "Units.Network"},
    {"no family at all", "Units.", "Units."},
    {"another prefix", "Words.Network.%@", "Words.Network.%@"},
    {"another letter case", "units.Network.%@", "units.Network.%@"},
    {"the prefix further on", " Units.Network.%@", " Units.Network.%@"},
    {"a bare template", "%@ GB", "%@ GB"},
    {"empty", "", ""},
    {"null", std::string_view(), ""},
    {"not UTF-8", "Units.Test.\xFF\xFE%@", "\xFF\xFE%@"},
    {"printf directives are text", "Units.Test.%s%n%@", "%s%n%@"},
    {"just before the first known key", "Units.Test.%@ cat", "%@ cat"},
    {"just after the last known key", "Units.Test.%@ dogs ", "%@ dogs "},
};

TEST(Localization, UnknownKeysTablesAndBundlesGiveTheTemplate) {
  want({"fr"});
  for (const TemplateCase& test : kTemplates) {
    EXPECT_EQ(text(test.key), test.text) << test.why;
    EXPECT_EQ(text(test.key, "No such table"), test.text) << test.why;
    EXPECT_EQ(text(test.key, {}), test.text) << test.why;
    EXPECT_EQ(text(test.key, "Animals", &kEmptyBundle), test.text) << test.why;
    EXPECT_EQ(text(test.key, "Animals", nullptr), test.text) << test.why;
  }
  EXPECT_EQ(text("Units.Test.%@ cats", "Animals", nullptr), "%@ cats");
}

TEST(Localization, NullCharactersAreCharacters) {
  EXPECT_EQ(text(std::string_view("Units.Test.%@\0x", 15)), std::string_view("%@\0x", 4));
}

TEST(Localization, HugeKeysAreSurvived) {
  const std::string huge(8'000'000, 'x');
  EXPECT_EQ(text("Units.Test." + huge), huge);
  EXPECT_EQ(text("Units." + huge), "Units." + huge);
  EXPECT_EQ(text("Units.Test.%@ cats", huge), "%@ cats");
}

TEST(Localization, TheNameOfATableNeedNotOutliveTheCall) {
  want({"de"});
  for (int i = 0; i < 3; ++i) EXPECT_EQ(text("Units.Test.%@ cats", std::string("Animals")), "%@ Katzen");
}

TEST(Localization, AHintMayBeAbsent) {
  want({"de"});
  EXPECT_EQ(KZMLocalizedStringFromTableInBundle("Units.Test.%@ cats", "Animals", &kBundle, nullptr), "%@ Katzen");
}

/// Calls `body` with the thread's number from all threads at once.
template <typename Body>
void together(int threads, const Body& body) {
  std::barrier start(threads);
  std::vector<std::jthread> running;
  for (int i = 0; i < threads; ++i) {
    running.emplace_back([&start, &body, i] {
      start.arrive_and_wait();
      body(i);
    });
  }
}

TEST(LocalizationConcurrency, ThreadsThatComeFirstTogetherGetTheSameText) {
  constexpr int kThreads = 8;
  for (int round = 0; round < 50; ++round) {
    want({round % 2 == 0 ? "fr" : "de"});
    std::array<std::string, kThreads> texts;
    together(kThreads, [&](int i) { texts[static_cast<std::size_t>(i)] = text("Units.Test.%@ cats"); });
    for (const std::string& each : texts) EXPECT_EQ(each, round % 2 == 0 ? "%@ chats" : "%@ Katzen");
  }
}

TEST(LocalizationConcurrency, LanguagesMayChangeWhileTextsAreRead) {
  const std::set<std::string> possible{"%@ chats", "%@ Katzen"};
  want({"fr"});
  together(4, [&](int i) {
    for (int round = 0; round < 200; ++round) {
      if (i == 0) want({round % 2 == 0 ? "de" : "fr"});
      EXPECT_TRUE(possible.contains(text("Units.Test.%@ cats")));
    }
  });
}

}  // namespace
}  // namespace kzm
