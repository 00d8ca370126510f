#include "settings/file.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <KZMUtilities/dictionary.h>

#include "settings/store.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/other_user.h"
#include "tests/support/scratch_directory.h"

namespace kzm::settings {
namespace {

namespace fs = std::filesystem;
using tests::OtherUser;

class FileTest : public StoreTest {};

TEST_F(FileTest, AnUnusablePlaceNeitherHangsNorIsOverwritten) {
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

TEST_F(FileTest, AFileAboveTheSizeLimitIsNotRead) {
  const std::string most = "{\"b\": 1}" + std::string(kMostBytes - 8, ' ');
  scratch_.write(kFile, most);
  EXPECT_EQ(store_.find("b"), Value(1));
  scratch_.write(kFile, most + " ");
  EXPECT_EQ(linesOf(1), "KZMSettings: " + path_ + " is not used: it is larger than 1048576 bytes\n");
  EXPECT_EQ(store_.find("b"), Value());
}

TEST_F(FileTest, AFileInThePlaceOfTheDirectoryMeansNoSettings) {
  scratch_.write("KZMUtilities", "in the way");
  EXPECT_EQ(linesOf(1), "");
  EXPECT_FALSE(store_.set(1, "a"));
  EXPECT_EQ(scratch_.read("KZMUtilities"), "in the way");
}

TEST_F(FileTest, WhatIsMadeBelongsToTheUserAloneAndNothingElseIsLeft) {
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

TEST_F(FileTest, AnExistingFileKeepsItsModeAndOwner) {
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

TEST_F(FileTest, AnExistingFileKeepsAnyUserAndAnyGroup) {
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

TEST_F(FileTest, WhatRootMakesForAUserIsTheUsers) {
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

TEST_F(FileTest, WhatAKilledWriterLeftIsGoneAfterTheNextChange) {
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

TEST_F(FileTest, AFailedWriteReportsTheReasonAndLeavesNothing) {
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

TEST_F(FileTest, ALinkedFileIsReplacedWhereItIs) {
  scratch_.write("kept/real.json", "{}");
  fs::create_directories(scratch_.path("KZMUtilities"));
  fs::create_symlink(scratch_.path("kept/real.json"), path_);
  EXPECT_TRUE(store_.set(1, "a"));
  EXPECT_TRUE(fs::is_symlink(path_));
  EXPECT_EQ(scratch_.read("kept/real.json"), "{\n  \"a\": 1\n}\n");
}

TEST_F(FileTest, AChangeIsRefusedWhileAnotherProcessKeepsTheLock) {
  EXPECT_TRUE(store_.set(1, "a"));
  {
    const Lock lock(path_);
    ASSERT_TRUE(lock.held());
    EXPECT_FALSE(store_.set(2, "a"));
    EXPECT_EQ(store_.find("a"), Value(1));
  }
  EXPECT_TRUE(store_.set(2, "a"));
}

TEST_F(FileTest, AChangeWaitsForTheLock) {
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

// The steps on a file alone, without a store.
class PlainFileTest : public testing::Test {
 protected:
  tests::ScratchDirectory scratch_;
  std::string path_ = scratch_.write("settings.json", "{}");

  // What replacing it reports. The file is as it was then, and nothing is beside it.
  void expectNotReplaced(const std::string& path, const char* fault, const char* why) const {
    const Replaced replaced = replace(path, "{\"a\": 1}");
    EXPECT_FALSE(replaced.identity.has_value()) << why;
    EXPECT_EQ(replaced.fault, fault) << why;
    EXPECT_FALSE(fs::exists(path + ".new")) << why;
    EXPECT_EQ(scratch_.read("settings.json"), "{}") << why;
  }
};

TEST_F(PlainFileTest, WhatCannotBeReadSaysWhy) {
  struct Case {
    const char* why;
    std::string path;
    const char* fault;
  };
  const Case cases[] = {
      {"a directory", scratch_.path("."), "it is not a regular file"},
      {"a name that is too long", scratch_.path(std::string(300, 'x')), "File name too long"},
  };
  for (const Case& row : cases) {
    const Content content = read(row.path);
    EXPECT_FALSE(content.text.has_value()) << row.why;
    EXPECT_EQ(content.fault, row.fault) << row.why;
  }
}

TEST_F(PlainFileTest, AFileThatFailsWhileItIsReadSaysWhy) {
  const std::string memory = "/proc/self/mem";  // a regular file, and nothing is at its beginning
  if (!fs::exists(memory)) GTEST_SKIP() << "left out: there is no /proc";
  const Content content = read(memory);
  EXPECT_FALSE(content.text.has_value());
  EXPECT_EQ(content.fault, "Input/output error");
}

TEST_F(PlainFileTest, AStateThatCannotBeAskedForIsNoAbsentFile) {
  EXPECT_EQ(identityOf(scratch_.path("absent")), Identity{});
  EXPECT_EQ(identityOf(path_ + "/absent"), Identity{}) << "in a file";
  EXPECT_EQ(identityOf(scratch_.path(std::string(300, 'x'))).error, ENAMETOOLONG);
  EXPECT_NE(identityOf(path_), Identity{});
}

TEST_F(PlainFileTest, OnlyAFileThatChangedLatelyIsFresh) {
  constexpr std::int64_t kYear1980 = 315'532'800'000'000'000;
  EXPECT_FALSE(isFresh(Identity{})) << "there is none";
  EXPECT_FALSE(isFresh(Identity{.size = 2, .changed = kYear1980}));
  EXPECT_TRUE(isFresh(identityOf(path_))) << "made just now";
}

TEST_F(PlainFileTest, WhatCannotBeReplacedStays) {
  fs::create_directory(scratch_.path("directory"));
  fs::create_symlink("loop", scratch_.path("loop"));
  expectNotReplaced(scratch_.path("directory"), "Is a directory", "a directory");
  expectNotReplaced(scratch_.path("loop"), "Too many levels of symbolic links", "a link to itself");
  expectNotReplaced(scratch_.path("absent/settings.json"), "No such file or directory", "no directory");
}

TEST_F(PlainFileTest, WhatAUserMakesIsTheUsersInAnyDirectory) {
  if (!OtherUser::canBeTaken()) GTEST_SKIP() << "left out: only root can act for another user";
  ASSERT_EQ(chmod(scratch_.path("").c_str(), 0777), 0);
  const std::string path = scratch_.path("made/settings.json");
  {
    const OtherUser other;
    const Lock lock(path);
    EXPECT_TRUE(lock.held()) << lock.fault();
    EXPECT_TRUE(replace(path, "{}").identity.has_value());
  }
  for (const std::string& made : {scratch_.path("made"), path, path + ".lock"}) {
    struct stat status {};
    ASSERT_EQ(stat(made.c_str(), &status), 0) << made;
    EXPECT_EQ(status.st_uid, OtherUser::kNumber) << made;
  }
}

TEST_F(PlainFileTest, ADirectoryMadeWithoutAnyRightsHoldsNoLock) {
  if (!OtherUser::canBeTaken()) GTEST_SKIP() << "left out: only root can act for another user";
  ASSERT_EQ(chmod(scratch_.path("").c_str(), 0777), 0);
  const std::string path = scratch_.path("made/settings.json");
  const mode_t before = umask(0777);
  {
    const OtherUser other;
    EXPECT_EQ(Lock(path).fault(), path + ".lock: Permission denied");
  }
  umask(before);
}

TEST_F(PlainFileTest, AFileThatCannotKeepItsOwnerIsNotReplaced) {
  if (!OtherUser::canBeTaken()) GTEST_SKIP() << "left out: only root can act for another user";
  ASSERT_EQ(chown(scratch_.path("").c_str(), OtherUser::kNumber, 0), 0);
  const OtherUser other;
  expectNotReplaced(path_, "Operation not permitted", "root's file");
}

TEST_F(PlainFileTest, WhatIsAnotherUsersIsNeitherReadNorLocked) {
  if (!OtherUser::canBeTaken()) GTEST_SKIP() << "left out: only root can act for another user";
  scratch_.write("settings.json.lock", "");
  ASSERT_EQ(chmod(scratch_.path("").c_str(), 0755), 0);
  ASSERT_EQ(chmod(path_.c_str(), 0600), 0);
  ASSERT_EQ(chmod((path_ + ".lock").c_str(), 0600), 0);
  const OtherUser other;
  EXPECT_EQ(read(path_).fault, "Permission denied");
  const Lock lock(path_);
  EXPECT_FALSE(lock.held());
  EXPECT_EQ(lock.fault(), path_ + ".lock: Permission denied");
}

TEST_F(PlainFileTest, ADirectoryThatCannotBeListedIsNoHindrance) {
  if (!OtherUser::canBeTaken()) GTEST_SKIP() << "left out: only root can act for another user";
  ASSERT_EQ(chown(path_.c_str(), OtherUser::kNumber, OtherUser::kNumber), 0);
  ASSERT_EQ(chown(scratch_.path("").c_str(), OtherUser::kNumber, OtherUser::kNumber), 0);
  ASSERT_EQ(chmod(scratch_.path("").c_str(), 0300), 0);
  {
    const OtherUser other;
    const Replaced replaced = replace(path_, "{\"a\": 1}");
    EXPECT_TRUE(replaced.identity.has_value()) << replaced.fault;
  }
  EXPECT_EQ(scratch_.read("settings.json"), "{\"a\": 1}");
}

}  // namespace
}  // namespace kzm::settings
