#include <gtest/gtest.h>
#include <set>
#include <string>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/key.h>

namespace kzm {
namespace {

TEST(Key, EachOptionHasASlotOfItsOwn) {
  std::set<int> slots;
  for (const std::string_view name : internal::kSlottedNames) {
    const Key key(name);
    EXPECT_TRUE(key.isAloneInSlot()) << name;
    EXPECT_TRUE(slots.insert(key.slot()).second) << name;
    EXPECT_EQ(Key(std::string(name)).slot(), key.slot()) << "made at run time: " << name;
  }
}

TEST(Key, OtherKeysShareTheOtherSlots) {
  const std::string near[] = {"", "Space", "space ", "spac", "spacer", "decimals-", std::string("space\0", 6)};
  for (const std::string& text : near) EXPECT_FALSE(Key(text).isAloneInSlot()) << text;
  for (int i = 0; i < 10000; ++i) {
    const std::string text = "key-" + std::to_string(i);
    const Key key(text);
    EXPECT_FALSE(key.isAloneInSlot()) << text;
    EXPECT_LT(key.slot(), Key::kSlots) << text;
  }
}

TEST(Key, OptionsAreFoundAmongAnyNumberOfOtherKeys) {
  for (const int others : {0, 1, 38, 39, 40, 126, 127, 128, 129, 300, 5000}) {
    Dictionary dictionary;
    for (int i = 0; i < others; ++i) dictionary.set("key-" + std::to_string(i), -i);
    int number = 0;
    for (const std::string_view name : internal::kSlottedNames) {
      EXPECT_FALSE(dictionary.contains(name)) << name << " among " << others;
      dictionary.set(name, ++number);
    }
    number = 0;
    for (const std::string_view name : internal::kSlottedNames) {
      const Value* value = dictionary.find(name);
      ASSERT_NE(value, nullptr) << name << " among " << others;
      EXPECT_EQ(*value, Value(++number)) << name;
      dictionary.remove(name);
      EXPECT_FALSE(dictionary.contains(name)) << name;
    }
    for (int i = 0; i < others; ++i) EXPECT_TRUE(dictionary.contains("key-" + std::to_string(i)));
  }
}

TEST(Key, TextsOfAnyLengthAreComparedToTheLastByte) {
  for (std::size_t size = 0; size <= 70; ++size) {
    const std::string text(size, 'a');
    EXPECT_TRUE(internal::sameText(text, std::string(size, 'a'))) << size;
    EXPECT_FALSE(internal::sameText(text, std::string(size + 1, 'a'))) << size;
    for (std::size_t i = 0; i < size; ++i) {
      std::string other = text;
      other[i] = 'b';
      EXPECT_FALSE(internal::sameText(text, other)) << size << " bytes, byte " << i;
    }
  }
}

}  // namespace
}  // namespace kzm
