// Typical readings of every family, as a reader of a language sees them.
#ifndef TOOLS_STRINGS_PAGE_READINGS_H
#define TOOLS_STRINGS_PAGE_READINGS_H

#include <string>
#include <vector>

namespace kzm::strings {

/// The readings of one family, or words.
struct Sample {
  std::string family;
  std::vector<std::string> texts;
};

/// The samples in the language of the tag, in the style and with the units of the region where it is mostly spoken.
/// Throws std::system_error when there is no process for them: the library keeps the units of the first language.
[[nodiscard]] std::vector<Sample> samplesIn(const std::string& language);

}  // namespace kzm::strings

#endif
