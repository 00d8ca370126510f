// Standard output.
#ifndef KZM_CLI_OUTPUT_H
#define KZM_CLI_OUTPUT_H

#include <iostream>
#include <string_view>

namespace kzm::cli {

/// Writes the text at once. Returns the status with which a program ends: 1 when it could not be written.
inline int print(std::string_view text) {
  std::cout << text;
  return std::cout.flush() ? 0 : 1;
}

}  // namespace kzm::cli

#endif
