// The program's own words in the user's language: headings, columns, states.
#ifndef KZM_CLI_WORDS_H
#define KZM_CLI_WORDS_H

#include <string>
#include <string_view>

namespace kzm::cli {

/// The word of a key of the table Words in resources/, without the table's prefix: word("Topics.Network"). In English
/// where the language has no such word. A new word is a new row of the English table.
[[nodiscard]] std::string word(std::string_view key);

}  // namespace kzm::cli

#endif
