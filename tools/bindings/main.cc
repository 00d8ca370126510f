// Prints a template with its placeholders replaced:  kzm_bindings FILE.in > FILE
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "tools/bindings/placeholders.h"

namespace kzm::bindings {
namespace {

struct Placeholder {
  std::string_view line;
  std::string (*text)();
};
constexpr Placeholder kPlaceholders[] = {
    {"@constants@", constants},
    {"@declarations@", declarations},
    {"@bodies@", bodies},
    {"@introspected@", introspected},
};

std::string replaced(const std::string& line) {
  for (const Placeholder& placeholder : kPlaceholders) {
    if (placeholder.line == line) return placeholder.text();
  }
  return line + '\n';
}

int print(const char* file) {
  std::ifstream lines(file);
  if (!lines) {
    std::cerr << "kzm_bindings: cannot read " << file << '\n';
    return 2;
  }
  for (std::string line; std::getline(lines, line);) std::cout << replaced(line);
  return std::cout.flush() ? 0 : 1;
}

}  // namespace
}  // namespace kzm::bindings

int main(int count, char** arguments) {
  if (count == 2) return kzm::bindings::print(arguments[1]);
  std::cerr << "usage: kzm_bindings FILE.in > FILE\n";
  return 2;
}
