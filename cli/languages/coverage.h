// How far the library's texts and the program's words are translated.
#ifndef KZM_CLI_LANGUAGES_COVERAGE_H
#define KZM_CLI_LANGUAGES_COVERAGE_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::cli {

/// A language, or a variant of one; what a variant does not have itself it has from its parent.
struct Coverage {
  std::string_view language;  // its tag
  std::string name;           // in the language itself
  std::size_t units = 0;      // texts of readings
  std::size_t words = 0;
};

/// All languages that there are texts in, in the order of their tags. English has all of them.
[[nodiscard]] std::vector<Coverage> coverages();

}  // namespace kzm::cli

#endif
