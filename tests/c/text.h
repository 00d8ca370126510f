// A result of the C library as a string; NULL is "NULL". The result is given back.
#ifndef KZM_TESTS_C_TEXT_H
#define KZM_TESTS_C_TEXT_H

#include <memory>
#include <string>

#include "c/kzm.h"

namespace kzm::tests {

inline std::string text(char* result) {
  const std::unique_ptr<char, void (*)(void*)> owner(result, kzm_free);
  return result != nullptr ? result : "NULL";
}

/// Why the last call failed; "" when it did not.
inline std::string lastError() {
  const char* error = kzm_last_error();
  return error != nullptr ? error : "";
}

}  // namespace kzm::tests

#endif
