#include "localization/texts.h"

#include <gtest/gtest.h>
#include <string>

namespace kzm::localization {
namespace {

using namespace std::string_view_literals;

StringTable table(std::string_view keys, std::string_view texts) { return {"en", "Table", keys, texts}; }

TEST(Texts, AreFoundByTheirWholeKeys) {
  Texts texts;
  texts.add(table("Units.Memory.%@ GB\0Units.Memory.%@ MB\0G\0"sv, "%@ Go\0%@ Mo\0\0"sv));
  struct Case {
    const char* why;
    std::string_view key;
    std::optional<std::string_view> text;
  };
  const Case cases[] = {
      {"the first", "Units.Memory.%@ GB", "%@ Go"},
      {"the second", "Units.Memory.%@ MB", "%@ Mo"},
      {"an empty text", "G", ""},
      {"the beginning of a key", "Units.Memory.", std::nullopt},
      {"the end of a key", "%@ GB", std::nullopt},
      {"another case", "g", std::nullopt},
      {"more than a key", "G ", std::nullopt},
      {"no key", "", std::nullopt},
  };
  for (const Case& c : cases) EXPECT_EQ(texts.find(c.key), c.text) << c.why;
}

TEST(Texts, WithoutATableThereAreNone) { EXPECT_EQ(Texts().find("Units.Memory.%@ GB"), std::nullopt); }

TEST(Texts, KeysThatAreThereKeepTheirs) {
  Texts texts;
  texts.add(table("both\0first\0"sv, "1\0one\0"sv));
  texts.add(table("both\0second\0"sv, "2\0two\0"sv));
  EXPECT_EQ(texts.find("both"), "1");
  EXPECT_EQ(texts.find("first"), "one");
  EXPECT_EQ(texts.find("second"), "two");
}

// More than there is room for at first, with ends that are alike and ends that are not.
TEST(Texts, ThousandsAreFound) {
  constexpr int kCount = 3000;
  std::string keys;
  std::string values;
  for (int i = 0; i < kCount; ++i) {
    keys.append(std::to_string(i)).append(i % 2 == 0 ? " ends alike" : "").push_back('\0');
    values.append(std::to_string(i)).push_back('\0');
  }
  Texts texts;
  texts.add(table(keys, values));
  for (int i = 0; i < kCount; ++i) {
    const std::string number = std::to_string(i);
    EXPECT_EQ(texts.find(number + (i % 2 == 0 ? " ends alike" : "")), number);
  }
}

TEST(Texts, AreAsManyAsSixteenBitsCount) {
  std::string keys;
  for (int i = 0; i < 65536; ++i) keys.append(std::to_string(i)).push_back('\0');
  Texts texts;
  texts.add(table(keys, keys));
  EXPECT_EQ(texts.find("0"), "0");
  EXPECT_EQ(texts.find("65534"), "65534");
  EXPECT_EQ(texts.find("65535"), std::nullopt) << "there is no room for it";
}

}  // namespace
}  // namespace kzm::localization
