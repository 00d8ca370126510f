// A folder of files that goes away with the test, and programs that run in it.
#ifndef KZM_TESTS_TOOLS_STRINGS_FOLDER_H
#define KZM_TESTS_TOOLS_STRINGS_FOLDER_H

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <unistd.h>

#include "tests/localization/command.h"

namespace kzm::tests {

class FolderTest : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::path(testing::TempDir()) / ("string-tables-" + std::to_string(getpid()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void write(const std::string& name, const std::string& content) const {
    const std::filesystem::path path = folder_ / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
  }

  [[nodiscard]] std::string read(const std::string& name) const {
    std::ifstream file(folder_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  [[nodiscard]] bool exists(const std::string& name) const { return std::filesystem::exists(folder_ / name); }

  [[nodiscard]] Outcome run(const std::string& command) const {
    return tests::run("cd '" + folder_.string() + "' && " + command);
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace kzm::tests

#endif
