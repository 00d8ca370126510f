#include "settings/location.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <pwd.h>
#include <string>
#include <unistd.h>

#include "tests/support/other_user.h"

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

// The variable, set or taken away until the end of the block.
class WithVariable {
 public:
  WithVariable(const char* name, const char* text) : name_(name) {
    const char* const former = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): tests have one thread here
    if (former != nullptr) former_ = former;
    assign(text);
  }
  ~WithVariable() { assign(former_ ? former_->c_str() : nullptr); }
  WithVariable(const WithVariable&) = delete;
  WithVariable& operator=(const WithVariable&) = delete;

 private:
  void assign(const char* text) const {
    if (text != nullptr) {
      ::setenv(name_, text, 1);  // NOLINT(concurrency-mt-unsafe): tests have one thread here
    } else {
      ::unsetenv(name_);  // NOLINT(concurrency-mt-unsafe): tests have one thread here
    }
  }

  const char* name_;
  std::optional<std::string> former_;
};

TEST(Location, OfTheUserComesFromTheEnvironmentElseFromTheUserDatabase) {
  const passwd* const user = ::getpwuid(::geteuid());  // NOLINT(concurrency-mt-unsafe): tests have one thread here
  const std::string fromDatabase = user != nullptr ? fileUnder("", user->pw_dir) : "";
  struct Case {
    const char* why;
    const char* configuration;
    const char* home;
    std::string file;
  };
  const Case cases[] = {
      {"both", "/conf", "/home/me", "/conf/KZMUtilities/settings.json"},
      {"no home", "/conf", nullptr, "/conf/KZMUtilities/settings.json"},
      {"no directory for configurations", nullptr, "/home/me", "/home/me/.config/KZMUtilities/settings.json"},
      {"nothing", nullptr, nullptr, fromDatabase},
      {"nothing that can be used", "", "relative", fromDatabase},
  };
  for (const Case& row : cases) {
    const WithVariable configuration("XDG_CONFIG_HOME", row.configuration);
    const WithVariable home("HOME", row.home);
    EXPECT_EQ(fileOfUser(), row.file) << row.why;
  }
}

TEST(Location, AUserWhomTheDatabaseDoesNotKnowHasNone) {
  if (!tests::OtherUser::canBeTaken()) GTEST_SKIP() << "left out: only root can act for another user";
  const WithVariable configuration("XDG_CONFIG_HOME", nullptr);
  const WithVariable home("HOME", nullptr);
  const tests::OtherUser other;
  EXPECT_EQ(fileOfUser(), "");
}

}  // namespace
}  // namespace kzm::settings
