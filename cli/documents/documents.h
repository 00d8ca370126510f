// What is installed beside the program and made of its own tables: the manual page and the shells' completions.
#ifndef KZM_CLI_DOCUMENTS_DOCUMENTS_H
#define KZM_CLI_DOCUMENTS_DOCUMENTS_H

#include <string>
#include <string_view>

namespace kzm::cli {

/// The manual page, for man(1).
[[nodiscard]] std::string manualPage(std::string_view version);

[[nodiscard]] std::string bashCompletion();
[[nodiscard]] std::string zshCompletion();
[[nodiscard]] std::string fishCompletion();

}  // namespace kzm::cli

#endif
