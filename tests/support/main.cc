// The main of every test program. Nothing in a test depends on who runs it where: no language, no zone and no settings
// of the user's own, whether ctest starts the program or a person does.
#include <cstdlib>
#include <gtest/gtest.h>

#include "tests/support/scratch_directory.h"

int main(int count, char** arguments) {
  for (const char* name :
       {"LANGUAGE", "LC_ALL", "LC_CTYPE", "LC_MEASUREMENT", "LC_MESSAGES", "LC_NUMERIC", "LC_TIME"}) {
    ::unsetenv(name);
  }
  ::setenv("LANG", "en_US.UTF-8", 1);
  ::setenv("TZ", "UTC", 1);
  const kzm::tests::ScratchDirectory configuration;
  ::setenv("XDG_CONFIG_HOME", configuration.path("config").c_str(), 1);
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
