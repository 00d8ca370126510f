#include "settings/store.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <KZMUtilities/dictionary.h>

#include "tests/support/scratch_directory.h"

using namespace std::string_literals;

namespace kzm::settings {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFile = "KZMUtilities/settings.json";

// Looks at the file at every read, so that nothing here has to wait.
class StoreTest : public testing::Test {
 protected:
  tests::ScratchDirectory scratch_;
  std::string path_ = scratch_.path(kFile);
  Store store_{path_, 0};

  [[nodiscard]] std::string linesOf(int reads) {
    testing::internal::CaptureStderr();
    for (int i = 0; i < reads; ++i) EXPECT_EQ(store_.find("a"), Value());
    return testing::internal::GetCapturedStderr();
  }
};

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

TEST_F(StoreTest, AnUnusablePlaceNeitherHangsNorIsOverwritten) {
  struct Case {
    const char* why;
    int (*make)(const char* path);
    const char* fault;
  };
  constexpr Case kCases[] = {
      {"a pipe nobody writes to", [](const char* path) { return mkfifo(path, 0600); }, "it is not a regular file"},
      {"a directory", [](const char* path) { return mkdir(path, 0700); }, "it is not a regular file"},
      {"a device", [](const char* path) { return symlink("/dev/zero", path); }, "it is not a regular file"},
      {"a link to itself", [](const char* path) { return symlink("settings.json", path); },
       "Too many levels of symbolic links"},
  };
  fs::create_directories(scratch_.path("KZMUtilities"));
  for (const Case& row : kCases) {
    ASSERT_EQ(row.make(path_.c_str()), 0) << row.why;
    const fs::file_type type = fs::symlink_status(path_).type();
    EXPECT_EQ(linesOf(3), "KZMSettings: " + path_ + " is not used: " + row.fault + "\n") << row.why;
    EXPECT_FALSE(store_.set(1, "a")) << row.why;
    EXPECT_EQ(fs::symlink_status(path_).type(), type) << row.why;
    fs::remove(path_);
    EXPECT_EQ(linesOf(1), "") << row.why;
  }
}

TEST_F(StoreTest, AFileAboveTheSizeLimitIsNotRead) {
  const std::string most = "{\"b\": 1}" + std::string(kMostBytes - 8, ' ');
  scratch_.write(kFile, most);
  EXPECT_EQ(store_.find("b"), Value(1));
  scratch_.write(kFile, most + " ");
  EXPECT_EQ(linesOf(1), "KZMSettings: " + path_ + " is not used: it is larger than 1048576 bytes\n");
  EXPECT_EQ(store_.find("b"), Value());
}

TEST_F(StoreTest, AFileInThePlaceOfTheDirectoryMeansNoSettings) {
  scratch_.write("KZMUtilities", "in the way");
  EXPECT_EQ(linesOf(1), "");
  EXPECT_FALSE(store_.set(1, "a"));
  EXPECT_EQ(scratch_.read("KZMUtilities"), "in the way");
}

TEST(Store, WithoutAPlaceNothingIsStored) {
  Store store("");
  EXPECT_EQ(store.find("a"), Value());
  EXPECT_FALSE(store.set(1, "a"));
}

TEST_F(StoreTest, WhatIsMadeBelongsToTheUserAloneAndNothingElseIsLeft) {
  Store deep(scratch_.path("one/two/KZMUtilities/settings.json"));
  EXPECT_TRUE(deep.set(1, "a"));
  EXPECT_TRUE(deep.set(2, "a"));
  EXPECT_EQ(fs::status(scratch_.path("one")).permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(scratch_.path("one/two/KZMUtilities")).permissions(), fs::perms::owner_all);
  const fs::perms kOwnerReadsAndWrites = fs::perms::owner_read | fs::perms::owner_write;
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(scratch_.path("one/two/KZMUtilities"))) {
    EXPECT_EQ(entry.status().permissions(), kOwnerReadsAndWrites) << entry.path();
    names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"settings.json", "settings.json.lock"}));
}

TEST_F(StoreTest, AnExistingFileKeepsItsModeAndOwner) {
  scratch_.write(kFile, "{}");
  ASSERT_TRUE(geteuid() != 0 || chown(path_.c_str(), 65534, 65534) == 0);
  for (const mode_t mode : {0664U, 0600U, 0640U}) {
    ASSERT_EQ(chmod(path_.c_str(), mode), 0);
    struct stat before {};
    ASSERT_EQ(stat(path_.c_str(), &before), 0);
    EXPECT_TRUE(store_.set(static_cast<int>(mode), "a"));
    struct stat after {};
    ASSERT_EQ(stat(path_.c_str(), &after), 0);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
  }
}

TEST_F(StoreTest, AnExistingFileKeepsAnyUserAndAnyGroup) {
  if (geteuid() != 0) GTEST_SKIP() << "left out: only root can give a file away";
  scratch_.write(kFile, "{}");
  struct Owner {
    uid_t user;
    gid_t group;
  };
  for (const Owner& owner : {Owner{65534, 0}, Owner{0, 65534}, Owner{0, 0}}) {
    ASSERT_EQ(chown(path_.c_str(), owner.user, owner.group), 0);
    EXPECT_TRUE(store_.set(static_cast<int>(owner.user + 2 * owner.group), "a"));
    struct stat after {};
    ASSERT_EQ(stat(path_.c_str(), &after), 0);
    EXPECT_EQ(after.st_uid, owner.user);
    EXPECT_EQ(after.st_gid, owner.group);
  }
}

TEST_F(StoreTest, WhatRootMakesForAUserIsTheUsers) {
  if (geteuid() != 0) GTEST_SKIP() << "left out: only root can act for a user";
  ASSERT_EQ(chown(scratch_.path("").c_str(), 65534, 65534), 0);
  EXPECT_TRUE(store_.set(1, "a"));
  for (const char* made : {"KZMUtilities", "KZMUtilities/settings.json", "KZMUtilities/settings.json.lock"}) {
    struct stat status {};
    ASSERT_EQ(stat(scratch_.path(made).c_str(), &status), 0) << made;
    EXPECT_EQ(status.st_uid, 65534U) << made;
    EXPECT_EQ(status.st_gid, 65534U) << made;
  }
}

TEST_F(StoreTest, WhatAKilledWriterLeftIsGoneAfterTheNextChange) {
  scratch_.write(kFile, "{}");
  scratch_.write(std::string(kFile) + ".new", "half a fi");
  scratch_.write("mine", "precious");
  EXPECT_TRUE(store_.set(1, "a"));
  EXPECT_FALSE(fs::exists(path_ + ".new"));
  fs::create_hard_link(scratch_.path("mine"), path_ + ".new");
  EXPECT_TRUE(store_.set(2, "a"));
  EXPECT_EQ(scratch_.read("mine"), "precious") << "removed, not emptied";
  EXPECT_EQ(store_.find("a"), Value(2));
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

TEST_F(StoreTest, AFailedWriteReportsTheReasonAndLeavesNothing) {
  EXPECT_TRUE(store_.set(1, "a"));
  const rlimit none{0, RLIM_INFINITY};
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  testing::internal::CaptureStderr();
  const auto former = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
  const bool changed = store_.set(2, "a");
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, former);
  static_cast<void>(testing::internal::GetCapturedStderr());
  EXPECT_FALSE(changed);
  EXPECT_EQ(store_.find("a"), Value(1));
  EXPECT_FALSE(fs::exists(path_ + ".new"));
}

TEST_F(StoreTest, ALinkedFileIsReplacedWhereItIs) {
  scratch_.write("kept/real.json", "{}");
  fs::create_directories(scratch_.path("KZMUtilities"));
  fs::create_symlink(scratch_.path("kept/real.json"), path_);
  EXPECT_TRUE(store_.set(1, "a"));
  EXPECT_TRUE(fs::is_symlink(path_));
  EXPECT_EQ(scratch_.read("kept/real.json"), "{\n  \"a\": 1\n}\n");
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

TEST_F(StoreTest, AChangeIsRefusedWhileAnotherProcessKeepsTheLock) {
  EXPECT_TRUE(store_.set(1, "a"));
  {
    const Lock lock(path_);
    ASSERT_TRUE(lock.held());
    EXPECT_FALSE(store_.set(2, "a"));
    EXPECT_EQ(store_.find("a"), Value(1));
  }
  EXPECT_TRUE(store_.set(2, "a"));
}

TEST_F(StoreTest, AChangeWaitsForTheLock) {
  EXPECT_TRUE(store_.set(1, "a"));
  auto lock = std::make_unique<Lock>(path_);
  ASSERT_TRUE(lock->held());
  std::thread other([&lock] {
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    lock.reset();
  });
  EXPECT_TRUE(store_.set(2, "a"));
  other.join();
  EXPECT_EQ(store_.find("a"), Value(2));
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
