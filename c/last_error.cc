#include "c/last_error.h"

#include <algorithm>

#include "port/ascii.h"

namespace kzm::c {
namespace {

// A plain buffer: reporting a failed allocation allocates nothing, and nothing is left when the thread ends.
constexpr std::size_t kRoom = 256;  // bytes
constinit thread_local char errorText[kRoom];

}  // namespace

constinit thread_local const char* lastError = nullptr;

void setError(std::string_view text) noexcept {
  std::size_t size = std::min(text.size(), kRoom - 1);
  while (size > 0 && size < text.size() && port::continuesCharacter(text[size])) --size;
  errorText[std::copy_n(text.begin(), size, errorText) - errorText] = '\0';
  lastError = errorText;
}

}  // namespace kzm::c
