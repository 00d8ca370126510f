#include "settings/location.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <pwd.h>
#include <string>
#include <unistd.h>

namespace kzm::settings {
namespace {

TEST(Location, IsUnderTheConfigurationDirectoryElseUnderHome) {
  struct Case {
    const char* why;
    const char* configuration;
    const char* home;
    const char* file;
  };
  constexpr Case kCases[] = {
      {"the configuration directory wins", "/conf", "/home/me", "/conf/KZMUtilities/settings.json"},
      {"it needs no home", "/conf", "", "/conf/KZMUtilities/settings.json"},
      {"an empty one counts as unset", "", "/home/me", "/home/me/.config/KZMUtilities/settings.json"},
      {"a relative one counts as unset", "conf", "/home/me", "/home/me/.config/KZMUtilities/settings.json"},
      {"a dot is relative", "./c", "/home/me", "/home/me/.config/KZMUtilities/settings.json"},
      {"a relative home is no place", "", "home/me", ""},
      {"nothing known, no place", "", "", ""},
  };
  for (const Case& row : kCases) EXPECT_EQ(fileUnder(row.configuration, row.home), row.file) << row.why;
}

// In a process of its own, for it changes the environment.
TEST(LocationDeathTest, WithoutAnEnvironmentHomeIsTheOneOfTheUserDatabase) {
  const passwd* const user = getpwuid(geteuid());
  if (user == nullptr) GTEST_SKIP() << "left out: this user is in no database";
  EXPECT_EXIT(
      {
        unsetenv("XDG_CONFIG_HOME");
        setenv("HOME", "relative", 1);
        _exit(fileOfUser() == std::string(user->pw_dir) + "/.config/KZMUtilities/settings.json" ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST(LocationDeathTest, AnEnvironmentSaysIt) {
  EXPECT_EXIT(
      {
        setenv("XDG_CONFIG_HOME", "/conf", 1);
        setenv("HOME", "/home/me", 1);
        const bool isConfigured = fileOfUser() == "/conf/KZMUtilities/settings.json";
        unsetenv("HOME");
        const bool needsNoHome = fileOfUser() == "/conf/KZMUtilities/settings.json";
        setenv("HOME", "/home/me", 1);
        unsetenv("XDG_CONFIG_HOME");
        _exit(isConfigured && needsNoHome && fileOfUser() == "/home/me/.config/KZMUtilities/settings.json" ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace kzm::settings
