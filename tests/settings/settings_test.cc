// The library as its users see it: the exported functions, and other processes that use them too.
#include <array>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <KZMSettings/KZMSettings.h>

#include "tests/support/scratch_directory.h"

namespace {

std::string fileOfTest() {
  const char* const folder = std::getenv("XDG_CONFIG_HOME");
  return (folder != nullptr ? std::string(folder) : std::string()) + "/KZMUtilities/settings.json";
}

std::string textOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

pid_t start(std::vector<std::string> words, const std::string& output = "/dev/null") {
  words.insert(words.begin(), SETTINGS_CLIENT);
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  pid_t child = -1;
  EXPECT_EQ(posix_spawn(&child, SETTINGS_CLIENT, &actions, nullptr, arguments.data(), environ), 0);
  posix_spawn_file_actions_destroy(&actions);
  return child;
}

int end(pid_t child) {
  int status = -1;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class Settings : public testing::Test {
 protected:
  void SetUp() override {
    for (const kzm::Dictionary::Entry& entry : KZMSettingsObjects()) {
      ASSERT_TRUE(KZMSettingsSetObjectForKeyPath(nullptr, entry.key));
    }
  }
};

TEST_F(Settings, AChangeIsReadBackAtOnceAndStored) {
  EXPECT_TRUE(KZMSettingsObjectForKeyPath("a.b").isNull());
  EXPECT_TRUE(KZMSettingsSetObjectForKeyPath(3, "a.b"));
  EXPECT_EQ(KZMSettingsObjectForKeyPath("a.b"), kzm::Value(3));
  EXPECT_EQ(KZMSettingsObjects(), (kzm::Dictionary{{"a.b", 3}}));
  EXPECT_EQ(textOf(fileOfTest()), "{\n  \"a.b\": 3\n}\n");
}

TEST_F(Settings, AnotherProcessSeesTheChangeAndItsOwnIsSeenWithinASecond) {
  EXPECT_TRUE(KZMSettingsSetObjectForKeyPath(3, "a.b"));
  EXPECT_EQ(end(start({"holds", "a.b", "3"})), 0);
  EXPECT_EQ(end(start({"set", "theirs", "1"})), 0);
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(1);
  while (KZMSettingsObjectForKeyPath("theirs0").isNull() && std::chrono::steady_clock::now() < limit) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_EQ(KZMSettingsObjectForKeyPath("theirs0"), kzm::Value(0));
  EXPECT_EQ(KZMSettingsObjectForKeyPath("a.b"), kzm::Value(3));
}

TEST_F(Settings, ProcessesThatWriteAtTheSameTimeLoseNothing) {
  const std::array<pid_t, 3> children{start({"set", "x", "20"}), start({"set", "y", "20"}), start({"set", "z", "20"})};
  for (int i = 0; i < 20; ++i) EXPECT_TRUE(KZMSettingsSetObjectForKeyPath(i, std::to_string(i)));
  for (const pid_t child : children) EXPECT_EQ(end(child), 0);
  EXPECT_TRUE(KZMSettingsSetObjectForKeyPath(true, "last"));
  EXPECT_EQ(KZMSettingsObjects().size(), 81U);
}

TEST_F(Settings, ObjectsInMemoryLastUntilTheLastDestructorAndReachNoFile) {
  EXPECT_TRUE(KZMSettingsSetObjectForKeyPath(3, "a.b"));
  const std::string before = textOf(fileOfTest());
  const kzm::tests::ScratchDirectory scratch;
  EXPECT_EQ(end(start({"memory"}, scratch.path("output"))), 0);
  EXPECT_EQ(scratch.read("output"), "still there\n");
  EXPECT_EQ(textOf(fileOfTest()), before);
}

}  // namespace
