// Writes typical readings of every family in all languages, or in one: kzm_strings_page [LANGUAGE]
#include <algorithm>
#include <exception>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include <KZMUtilities/display_width.h>
#include <KZMUtilities/text.h>

#include "cli/languages/coverage.h"
#include "tools/strings/page/readings.h"

namespace kzm::strings {
namespace {

std::string lineOf(const std::vector<std::string>& texts) {
  const bool isolates = std::ranges::any_of(texts, hasRightToLeft);
  std::string line;
  for (const std::string& text : texts) line += (line.empty() ? "" : " | ") + (isolates ? isolated(text) : text);
  return line;
}

void print(const cli::Coverage& language) {
  constexpr int kFamilyWidth = 10;
  std::cout << language.name << " (" << language.language << ")\n";
  for (const Sample& sample : samplesIn(std::string(language.language))) {
    std::cout << "  " << std::left << std::setw(kFamilyWidth) << sample.family << lineOf(sample.texts) << '\n';
  }
}

int run(const std::string& wanted) {
  std::vector<cli::Coverage> languages = cli::coverages();
  if (!wanted.empty()) std::erase_if(languages, [&](const cli::Coverage& each) { return each.language != wanted; });
  if (languages.empty()) {
    std::cerr << "kzm_strings_page: there is no language \"" << wanted << "\"\n";
    return 1;
  }
  for (const cli::Coverage& language : languages) {
    if (&language != languages.data()) std::cout << '\n';
    print(language);
  }
  return std::cout.flush() ? 0 : 1;
}

}  // namespace
}  // namespace kzm::strings

int main(int argc, char** argv) {
  if (argc > 2) {
    std::cerr << "usage: kzm_strings_page [LANGUAGE]\n";
    return 2;
  }
  try {
    return kzm::strings::run(argc == 2 ? argv[1] : "");
  } catch (const std::exception& error) {
    std::cerr << "kzm_strings_page: " << error.what() << '\n';
    return 1;
  }
}
