// The fixture of tests that look at the shared cache.
#ifndef KZM_TESTS_SUPPORT_SHARED_STATE_H
#define KZM_TESTS_SUPPORT_SHARED_STATE_H

#include <gtest/gtest.h>
#include <memory>

#include <KZMUtilities/shared.h>

namespace kzm::tests {

/// Every test starts with an empty cache and leaves one.
class SharedState : public testing::Test {
 protected:
  SharedState() { KZMUtilities::shared().setCache(nullptr); }
  ~SharedState() override { KZMUtilities::shared().setCache(nullptr); }

  static std::shared_ptr<Cache> cache() { return KZMUtilities::shared().cache(); }
};

}  // namespace kzm::tests

#endif
