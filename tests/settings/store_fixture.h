// A store whose file is in a folder of its own.
#ifndef KZM_TESTS_SETTINGS_STORE_FIXTURE_H
#define KZM_TESTS_SETTINGS_STORE_FIXTURE_H

#include <gtest/gtest.h>
#include <string>

#include <KZMUtilities/dictionary.h>

#include "settings/store.h"
#include "tests/support/scratch_directory.h"

namespace kzm::settings {

inline constexpr const char* kFile = "KZMUtilities/settings.json";

/// Looks at the file at every read, so that nothing here has to wait.
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

}  // namespace kzm::settings

#endif
