#include "settings/location.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace kzm::settings
