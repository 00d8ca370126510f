// Checks the string tables and writes them as one C++ source: kzm_compile_strings OUTPUT TABLE...
//
// Each TABLE is a file <language>.lproj/<name>.strings. A fault is reported in one line with its place, and nothing is
// written then. This runs at build time, on the machine that builds, and needs nothing but the standard library.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

#include "tools/strings/cpp_source.h"
#include "tools/strings/rules.h"

namespace kzm::strings {
namespace {

/// What is wrong; nothing when the source is written.
Faults compile(const std::filesystem::path& output, const std::vector<std::filesystem::path>& paths) {
  Faults faults;
  const Catalog catalog = readCatalog(paths, faults);
  if (faults.empty()) faults = plainFaults(catalog);
  if (!faults.empty()) return faults;
  std::ofstream file(output, std::ios::binary);
  writeSource(file, catalog);
  file.close();
  if (!file) faults.push_back({output.string(), 0, "cannot be written"});
  return faults;
}

}  // namespace
}  // namespace kzm::strings

int main(int argc, char** argv) {
  using namespace kzm::strings;
  if (argc < 3) {
    std::cerr << "usage: kzm_compile_strings OUTPUT TABLE...\n";
    return 2;
  }
  try {
    const Faults faults = compile(argv[1], {argv + 2, argv + argc});
    for (const Fault& fault : faults) std::cerr << asLine(fault) << '\n';
    return faults.empty() ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "kzm_compile_strings: " << error.what() << '\n';
    return 1;
  }
}
