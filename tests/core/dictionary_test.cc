#include <gtest/gtest.h>
#include <string>

#include <KZMUtilities/dictionary.h>

namespace kzm {
namespace {

TEST(Dictionary, FindsWhatWasSetUnderAnyNumberOfKeys) {
  for (const std::size_t count : {1U, 2U, 16U, 17U, 18U, 64U, 65U, 1000U}) {
    Dictionary dictionary;
    for (std::size_t i = 0; i < count; ++i) dictionary.set("key-" + std::to_string(i), i);
    ASSERT_EQ(dictionary.size(), count);
    for (std::size_t i = 0; i < count; ++i) {
      const Value* value = dictionary.find("key-" + std::to_string(i));
      ASSERT_NE(value, nullptr) << i << " of " << count;
      EXPECT_EQ(*value, Value(i));
    }
    EXPECT_EQ(dictionary.find("key-" + std::to_string(count)), nullptr);
    EXPECT_EQ(dictionary.find(""), nullptr);
  }
}

TEST(Dictionary, SettingAKeyAgainKeepsItsPlace) {
  Dictionary dictionary{{"first", 1}, {"second", 2}};
  dictionary.set("first", "one");
  ASSERT_EQ(dictionary.size(), 2U);
  EXPECT_EQ(dictionary.begin()->key, "first");
  EXPECT_EQ(dictionary.begin()->value, Value("one"));
}

TEST(Dictionary, RemovedKeysAreAbsentAndTheOthersStay) {
  for (const int count : {3, 17, 40}) {
    Dictionary dictionary;
    for (int i = 0; i < count; ++i) dictionary.set(std::to_string(i), i);
    dictionary.remove("1");
    dictionary.remove("never there");
    EXPECT_EQ(dictionary.size(), static_cast<std::size_t>(count - 1));
    EXPECT_FALSE(dictionary.contains("1"));
    for (int i = 2; i < count; ++i) EXPECT_TRUE(dictionary.contains(std::to_string(i))) << i;
    dictionary.set("1", nullptr);
    EXPECT_TRUE(dictionary.contains("1")) << "a key is present also when it holds null";
  }
}

TEST(Dictionary, EqualityTakesNoAccountOfOrder) {
  const Dictionary one{{"a", 1}, {"b", Dictionary{{"c", Array{1, 2.5, "x"}}}}};
  const Dictionary same{{"b", Dictionary{{"c", Array{1, 2.5, "x"}}}}, {"a", 1}};
  const Dictionary other{{"b", Dictionary{{"c", Array{1, 2.5, "y"}}}}, {"a", 1}};
  EXPECT_EQ(one, same);
  EXPECT_NE(one, other);
  EXPECT_NE(one, Dictionary{});
}

TEST(Value, EqualityTakesAccountOfKind) {
  const Value values[] = {nullptr, true, 1, 1.0, "1", Array{1}, Dictionary{{"1", 1}}};
  for (const Value& a : values) {
    for (const Value& b : values) EXPECT_EQ(a == b, &a == &b);
  }
}

TEST(Value, UnsignedIntegersBeyondTheSignedRangeAreDoubles) {
  EXPECT_EQ(Value(std::uint64_t{9223372036854775807U}), Value(9223372036854775807));
  EXPECT_EQ(Value(std::uint64_t{9223372036854775808U}), Value(9223372036854775808.0));
}

}  // namespace
}  // namespace kzm
