#include "settings/store.h"

#include <chrono>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <thread>

#include <KZMUtilities/dictionary.h>

#include "tests/settings/store_fixture.h"
#include "tests/support/scratch_directory.h"

using namespace std::string_literals;

namespace kzm::settings {
namespace {

namespace fs = std::filesystem;

TEST_F(StoreTest, WithoutAFileThereAreNoSettingsAndReadingMakesNone) {
  EXPECT_EQ(linesOf(3), "");
  EXPECT_TRUE(store_.objects().empty());
  EXPECT_FALSE(fs::exists(scratch_.path("KZMUtilities")));
}

TEST_F(StoreTest, EveryKindOfValueComesBackFromTheFile) {
  const Dictionary kValues{
      {"true", true},
      {"false", false},
      {"zero", 0},
      {"least", std::numeric_limits<std::int64_t>::min()},
      {"greatest", std::numeric_limits<std::int64_t>::max()},
      {"one", 1.0},
      {"minus", -0.0},
      {"huge", 1e300},
      {"tiny", 5e-324},
      {"tenth", 0.1},
      {"", "the empty key"},
      {"text", "\"quoted\" \\ \n\t\x01 Grad \u00b0C \U0001f321"},
      {"nul", std::string("a\0b", 3)},
      {"list", Array{1, 1.0, true, nullptr, "x", Array{}}},
      {"map", Dictionary{{"a", Dictionary{{"b", 2}}}}},
  };
  for (const Dictionary::Entry& entry : kValues) EXPECT_TRUE(store_.set(entry.value, entry.key)) << entry.key;
  Store again(path_);
  for (const Dictionary::Entry& entry : kValues) {
    EXPECT_EQ(store_.find(entry.key), entry.value) << entry.key;
    EXPECT_EQ(again.find(entry.key), entry.value) << entry.key;
  }
  EXPECT_TRUE(std::signbit(*again.find("minus").real()));
  EXPECT_EQ(again.objects(), kValues);
}

TEST_F(StoreTest, NullRemovesASetting) {
  EXPECT_TRUE(store_.set(1, "a"));
  EXPECT_TRUE(store_.set(2, "b"));
  EXPECT_TRUE(store_.set(nullptr, "a"));
  EXPECT_EQ(store_.find("a"), Value());
  EXPECT_EQ(scratch_.read(kFile), "{\n  \"b\": 2\n}\n");
}

TEST_F(StoreTest, RemovingWhatIsNotThereMakesNoFile) {
  EXPECT_TRUE(store_.set(nullptr, "a"));
  EXPECT_FALSE(fs::exists(path_));
}

TEST_F(StoreTest, IntegerAndDoubleOfOneValueAreDifferentSettings) {
  EXPECT_TRUE(store_.set(1, "a"));
  EXPECT_TRUE(store_.set(1.0, "a"));
  EXPECT_EQ(Store(path_).find("a"), Value(1.0));
}

TEST_F(StoreTest, WhatOthersKeepInTheFileStays) {
  scratch_.write(kFile, R"({"other": {"x": [18446744073709551615, null]}, "a": 1})");
  EXPECT_TRUE(store_.set(2, "a"));
  const std::string text = scratch_.read(kFile);
  EXPECT_NE(text.find("18446744073709551615"), std::string::npos) << text;
  EXPECT_NE(text.find("null"), std::string::npos) << text;
  EXPECT_EQ(store_.find("a"), Value(2));
}

TEST_F(StoreTest, RefusedValuesLeaveEverythingAsItWas) {
  EXPECT_TRUE(store_.set(1, "a"));
  const std::string before = scratch_.read(kFile);
  EXPECT_FALSE(store_.set(std::nan(""), "a"));
  EXPECT_FALSE(store_.set(Value(std::make_shared<Object>()), "a"));
  EXPECT_FALSE(store_.set("\xff", "a"));
  EXPECT_FALSE(store_.set(2, "\xff"));
  EXPECT_FALSE(store_.set(std::string(kMostBytes, 'x'), "a")) << "a file that is too large could not be read again";
  EXPECT_EQ(store_.find("a"), Value(1));
  EXPECT_EQ(scratch_.read(kFile), before);
}

TEST_F(StoreTest, ABrokenFileIsNotUsedNotOverwrittenAndReportedOnceForEachContent) {
  scratch_.write(kFile, "{\"a\": 1,\n");
  EXPECT_EQ(linesOf(5), "KZMSettings: " + path_ + " is not used: line 2 is not JSON\n");
  fs::last_write_time(path_, fs::file_time_type::clock::now());
  EXPECT_EQ(linesOf(2), "") << "the same content, only touched";
  EXPECT_FALSE(store_.set(1, "a"));
  EXPECT_EQ(scratch_.read(kFile), "{\"a\": 1,\n");
  scratch_.write(kFile, "{\"a\": 2,\n");
  EXPECT_EQ(linesOf(2), "KZMSettings: " + path_ + " is not used: line 2 is not JSON\n");
  scratch_.write(kFile, "{}");
  EXPECT_EQ(linesOf(2), "") << "there is nothing to report any more";
  scratch_.write(kFile, "{\"a\": 2,\n");
  EXPECT_EQ(linesOf(2), "KZMSettings: " + path_ + " is not used: line 2 is not JSON\n") << "broken again";
  scratch_.write(kFile, "{\"a\": 2}");
  EXPECT_EQ(store_.find("a"), Value(2));
  EXPECT_TRUE(store_.set(3, "a"));
}

TEST_F(StoreTest, AFileThatBreaksTakesItsSettingsAway) {
  EXPECT_TRUE(store_.set(1, "a"));
  scratch_.write(kFile, "garbage");
  EXPECT_NE(linesOf(1), "");
  EXPECT_TRUE(store_.objects().empty());
}

TEST(Store, WithoutAPlaceNothingIsStored) {
  Store store("");
  EXPECT_EQ(store.find("a"), Value());
  EXPECT_FALSE(store.set(1, "a"));
}

TEST_F(StoreTest, AnEmptyFileIsNoSettingsAndCanBeWritten) {
  for (const char* nothing : {"", "\n", "  \t\r\n"}) {
    scratch_.write(kFile, nothing);
    EXPECT_EQ(linesOf(1), "");
    EXPECT_TRUE(store_.set(1, "a"));
    EXPECT_EQ(scratch_.read(kFile), "{\n  \"a\": 1\n}\n");
  }
}

TEST_F(StoreTest, BytesAfterAZeroByteAreLeftAlone) {
  const std::string text = "{\"b\": 1}\0,\"Mine\":\"precious\"}"s;
  scratch_.write(kFile, text);
  EXPECT_EQ(linesOf(1), "KZMSettings: " + path_ + " is not used: line 1 is not JSON\n");
  EXPECT_FALSE(store_.set(2, "a"));
  EXPECT_EQ(scratch_.read(kFile), text);
}

TEST_F(StoreTest, AByteOrderMarkIsPassedOverAndNotWrittenAgain) {
  scratch_.write(kFile, "\xEF\xBB\xBF{\"b\": 1}");
  EXPECT_EQ(store_.find("b"), Value(1));
  EXPECT_TRUE(store_.set(2, "a"));
  EXPECT_EQ(scratch_.read(kFile), "{\n  \"a\": 2,\n  \"b\": 1\n}\n");
}

TEST_F(StoreTest, NumbersOfOthersAreWrittenBackAsTheyCame) {
  scratch_.write(kFile, R"({"b": 12345678901234567890123, "c": [0.10000000000000000001, 1E3]})");
  EXPECT_TRUE(store_.set(2, "a"));
  EXPECT_EQ(scratch_.read(kFile),
            "{\n  \"a\": 2,\n  \"b\": 12345678901234567890123,\n  \"c\": [\n    0.10000000000000000001,\n    1E3\n  "
            "]\n}\n");
}

// A file that cannot be changed, and what is reported.
TEST_F(StoreTest, EachFailureNamesTheFileAndTheReason) {
  struct Case {
    const char* why;
    void (*prepare)(const tests::ScratchDirectory& scratch);
    std::string fault;
  };
  using Scratch = tests::ScratchDirectory;
  const std::string lock = path_ + ".lock";
  const Case cases[] = {
      {"a broken file", [](const Scratch& s) { s.write(kFile, "{\n"); }, "line 2 is not JSON"},
      {"a directory in the place of the lock",
       [](const Scratch& s) { fs::create_directories(s.path(kFile) + ".lock"); }, lock + ": Is a directory"},
      {"a directory in the place of the new file",
       [](const Scratch& s) { fs::create_directories(s.path(kFile) + ".new"); }, "File exists"},
      {"a file in the place of the directory", [](const Scratch& s) { s.write("KZMUtilities", ""); },
       lock + ": Not a directory"},
      {"no more room",
       [](const Scratch& s) { s.write(kFile, "{\"b\": \"" + std::string(kMostBytes - 12, 'x') + "\"}"); },
       "it would be larger than 1048576 bytes"},
  };
  for (const Case& c : cases) {
    fs::remove_all(scratch_.path("KZMUtilities"));
    c.prepare(scratch_);
    static_cast<void>(linesOf(1));  // a broken file is reported once by itself
    testing::internal::CaptureStderr();
    EXPECT_FALSE(store_.set(1, "a")) << c.why;
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "KZMSettings: " + path_ + " is not changed: " + c.fault + "\n")
        << c.why;
  }
}

TEST_F(StoreTest, ChangesOfTheFileAreSeenAlsoWithinOneTickOfItsClock) {
  for (int i = 0; i < 50; ++i) {
    scratch_.write(kFile, "{\"a\": " + std::to_string(10 + i) + "}");
    ASSERT_EQ(store_.find("a"), Value(10 + i));
  }
  fs::remove(path_);
  EXPECT_EQ(store_.find("a"), Value());
}

// On a machine that is busy all the time the moment may have passed; so there are many attempts.
TEST_F(StoreTest, TheFileIsNotLookedAtForAMoment) {
  bool wasSeenLate = false;
  for (int attempt = 0; attempt < 100 && !wasSeenLate; ++attempt) {
    scratch_.write(kFile, R"({"a": 1})");
    Store store(path_);
    EXPECT_EQ(store.find("a"), Value(1));
    scratch_.write(kFile, R"({"a": 2})");
    wasSeenLate = store.find("a") == Value(1);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (store.find("a") == Value(1) && std::chrono::steady_clock::now() < end) std::this_thread::yield();
    EXPECT_EQ(store.find("a"), Value(2)) << "but then it is";
  }
  EXPECT_TRUE(wasSeenLate);
}

TEST_F(StoreTest, AnotherThreadSeesAChangeAtItsNextRead) {
  Store store(path_, 1000000);
  EXPECT_EQ(store.find("a"), Value());
  std::thread([&store] { EXPECT_TRUE(store.set(1, "a")); }).join();
  EXPECT_EQ(store.find("a"), Value(1));
}

TEST_F(StoreTest, TwoStoresInOneThreadKeepApart) {
  Store other(scratch_.path("other/settings.json"));
  EXPECT_TRUE(store_.set(1, "a"));
  EXPECT_TRUE(other.set(2, "a"));
  EXPECT_EQ(store_.find("a"), Value(1));
  EXPECT_EQ(other.find("a"), Value(2));
  EXPECT_EQ(store_.find("a"), Value(1));
}

TEST_F(StoreTest, ObjectsInMemoryReplaceTheFileForGood) {
  scratch_.write(kFile, R"({"a": 1, "b": 2})");
  EXPECT_EQ(store_.find("a"), Value(1));
  store_.useObjects({{"c", 3}});
  EXPECT_EQ(store_.find("a"), Value());
  EXPECT_EQ(store_.find("c"), Value(3));
  EXPECT_TRUE(store_.set(4, "a"));
  EXPECT_TRUE(store_.set(nullptr, "c"));
  EXPECT_FALSE(store_.set(std::nan(""), "a"));
  scratch_.write(kFile, R"({"b": 5})");
  EXPECT_EQ(store_.objects(), (Dictionary{{"a", 4}}));
  EXPECT_EQ(scratch_.read(kFile), R"({"b": 5})");
}

TEST_F(StoreTest, ObjectsInMemoryBeforeTheFirstReadMeanThatTheFileIsNeverRead) {
  scratch_.write(kFile, "broken");
  testing::internal::CaptureStderr();
  store_.useObjects({});
  EXPECT_EQ(store_.find("a"), Value());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace kzm::settings
