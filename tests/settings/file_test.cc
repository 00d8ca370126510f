#include "settings/file.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/other_user.h"
#include "tests/support/scratch_directory.h"

namespace kzm::settings {
namespace {

namespace fs = std::filesystem;
using tests::OtherUser;

class FileTest : public testing::Test {
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

TEST_F(FileTest, WhatCannotBeReadSaysWhy) {
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

TEST_F(FileTest, AFileThatFailsWhileItIsReadSaysWhy) {
  const std::string memory = "/proc/self/mem";  // a regular file, and nothing is at its beginning
  if (!fs::exists(memory)) GTEST_SKIP() << "left out: there is no /proc";
  const Content content = read(memory);
  EXPECT_FALSE(content.text.has_value());
  EXPECT_EQ(content.fault, "Input/output error");
}

TEST_F(FileTest, AStateThatCannotBeAskedForIsNoAbsentFile) {
  EXPECT_EQ(identityOf(scratch_.path("absent")), Identity{});
  EXPECT_EQ(identityOf(path_ + "/absent"), Identity{}) << "in a file";
  EXPECT_EQ(identityOf(scratch_.path(std::string(300, 'x'))).error, ENAMETOOLONG);
  EXPECT_NE(identityOf(path_), Identity{});
}

TEST_F(FileTest, OnlyAFileThatChangedLatelyIsFresh) {
  constexpr std::int64_t kYear1980 = 315'532'800'000'000'000;
  EXPECT_FALSE(isFresh(Identity{})) << "there is none";
  EXPECT_FALSE(isFresh(Identity{.size = 2, .changed = kYear1980}));
  EXPECT_TRUE(isFresh(identityOf(path_))) << "made just now";
}

TEST_F(FileTest, WhatCannotBeReplacedStays) {
  fs::create_directory(scratch_.path("directory"));
  fs::create_symlink("loop", scratch_.path("loop"));
  expectNotReplaced(scratch_.path("directory"), "Is a directory", "a directory");
  expectNotReplaced(scratch_.path("loop"), "Too many levels of symbolic links", "a link to itself");
  expectNotReplaced(scratch_.path("absent/settings.json"), "No such file or directory", "no directory");
}

TEST_F(FileTest, WhatAUserMakesIsTheUsersInAnyDirectory) {
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

TEST_F(FileTest, ADirectoryMadeWithoutAnyRightsHoldsNoLock) {
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

TEST_F(FileTest, AFileThatCannotKeepItsOwnerIsNotReplaced) {
  if (!OtherUser::canBeTaken()) GTEST_SKIP() << "left out: only root can act for another user";
  ASSERT_EQ(chown(scratch_.path("").c_str(), OtherUser::kNumber, 0), 0);
  const OtherUser other;
  expectNotReplaced(path_, "Operation not permitted", "root's file");
}

TEST_F(FileTest, WhatIsAnotherUsersIsNeitherReadNorLocked) {
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

TEST_F(FileTest, ADirectoryThatCannotBeListedIsNoHindrance) {
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
