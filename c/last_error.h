// Why the calling thread's last call failed. No exception crosses the C boundary: each becomes an error here.
#ifndef KZM_C_LAST_ERROR_H
#define KZM_C_LAST_ERROR_H

#include <exception>
#include <new>
#include <string_view>

namespace kzm::c {

/// Null when the thread's last call did not fail. The text is good until the thread's next call.
[[nodiscard]] const char* lastError() noexcept;

void clearError() noexcept;

/// A text that is too long is cut between two characters.
void setError(std::string_view text) noexcept;

/// What the call gives, or `failure` with an error.
template <class R, class Call>
[[nodiscard]] R guarded(R failure, const Call& call) noexcept {
  clearError();
  try {
    return call();
  } catch (const std::bad_alloc&) {
    setError("out of memory");
  } catch (const std::exception& error) {
    setError(error.what());
  }
  return failure;
}

}  // namespace kzm::c

#endif
