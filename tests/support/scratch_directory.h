// A directory of a test's own, gone with everything in it at the end of the test.
#ifndef KZM_TESTS_SUPPORT_SCRATCH_DIRECTORY_H
#define KZM_TESTS_SUPPORT_SCRATCH_DIRECTORY_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

namespace kzm::tests {

class ScratchDirectory {
 public:
  ScratchDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "kzm-XXXXXX").string();
    path_ = mkdtemp(name.data()) != nullptr ? name : "";
  }
  ScratchDirectory(const ScratchDirectory&) = delete;
  ScratchDirectory& operator=(const ScratchDirectory&) = delete;
  ~ScratchDirectory() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }

  /// The path of something in the directory.
  [[nodiscard]] std::string path(std::string_view name) const { return path_ + "/" + std::string(name); }

  /// Writes a file in the directory, and the directories it is in; gives its path.
  std::string write(std::string_view name, std::string_view text) const {
    std::string file = path(name);
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
    return file;
  }

  [[nodiscard]] std::string read(std::string_view name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

 private:
  std::string path_;
};

}  // namespace kzm::tests

#endif
