// Which words a command line may go on with.
#ifndef KZM_CLI_DOCUMENTS_WORDS_H
#define KZM_CLI_DOCUMENTS_WORDS_H

#include <string>
#include <string_view>
#include <vector>

namespace kzm::cli {

/// One word and what it does; the text may be empty.
struct Word {
  std::string text;
  std::string_view help;
};

/// The words that may follow those of a path, such as "format sensor fan", whatever else comes after it.
struct Place {
  std::string path;
  std::vector<Word> words;
};

/// Every place with the words known there, longer paths before the paths that they begin with.
[[nodiscard]] std::vector<Place> places();

/// The flags after which a value follows.
[[nodiscard]] std::vector<std::string_view> flagsWithValue();

}  // namespace kzm::cli

#endif
