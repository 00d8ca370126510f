// Runs every input in the folders that are named, for builds without a fuzzer.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/fuzz/input.h"

int main(int count, char** arguments) {
  std::size_t inputs = 0;
  for (int i = 1; i < count; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string input(std::istreambuf_iterator<char>(file), {});
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
      ++inputs;
    }
  }
  std::printf("%zu inputs\n", inputs);
  return inputs > 0 ? 0 : 1;
}
