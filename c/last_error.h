// Why the calling thread's last call failed. No exception crosses the C boundary: each becomes an error here.
#ifndef KZM_C_LAST_ERROR_H
#define KZM_C_LAST_ERROR_H

#include <exception>
#include <new>
#include <string_view>

namespace kzm::c {

/// Null when the thread's last call did not fail. The text is good until the thread's next call.
/// Every call clears it: initial-exec makes that one store.
[[gnu::tls_model("initial-exec")]] extern constinit thread_local const char* lastError;

/// A text that is too long is cut between two characters.
void setError(std::string_view text) noexcept;

/// What the call gives, or `failure` with an error.
template <class R, class Call>
[[nodiscard, gnu::always_inline]] inline R guarded(R failure, const Call& call) noexcept {
  lastError = nullptr;
  try {
    return call();
  } catch (const std::bad_alloc&) {
    setError("out of memory");
  } catch (const std::exception& error) {
    setError(error.what());
  } catch (...) {
    setError("something was thrown that is no error");
  }
  return failure;
}

}  // namespace kzm::c

#endif
