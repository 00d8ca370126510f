// For tests of the machine that they run on: left out where the kernel shows nothing of it.
#ifndef KZM_TESTS_SUPPORT_KERNEL_FILES_H
#define KZM_TESTS_SUPPORT_KERNEL_FILES_H

#include <gtest/gtest.h>
#include <unistd.h>

namespace kzm::tests {

inline bool kernelFilesAreThere() { return ::access("/proc/stat", R_OK) == 0; }

class KernelFiles : public testing::Test {
 protected:
  void SetUp() override {
    if (!kernelFilesAreThere()) GTEST_SKIP() << "left out: /proc is not mounted";
  }
};

}  // namespace kzm::tests

#endif
