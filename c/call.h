// Carries C arguments into a C++ call, and its result back.
//
// `call<F>` is the body of every function that is generated from the catalogue: what F takes and gives decides how each
// argument is read and what is returned.
#ifndef KZM_C_CALL_H
#define KZM_C_CALL_H

#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "c/choices.h"
#include "c/last_error.h"
#include "c/options_memo.h"
#include "catalogue/arguments.h"
#include "catalogue/results.h"
#include "port/per_thread.h"

namespace kzm::c {

/// The JSON of an argument that is a JSON text, and of one that is a bare text. NULL is JSON null.
[[nodiscard]] catalogue::Json jsonFrom(const char* text);
[[nodiscard]] catalogue::Json stringFrom(const char* text);

/// The text in memory of its own, which `kzm_free` gives back. Throws std::bad_alloc.
[[nodiscard]] inline char* copyOf(std::string_view text) {
  auto* const copy = static_cast<char*>(std::malloc(text.size() + 1));
  if (copy == nullptr) throw std::bad_alloc();
  std::memcpy(copy, text.data(), text.size());
  copy[text.size()] = '\0';
  return copy;
}

// Reading and returning are inlined into each function: a text takes some 30 ns to make, and a call some 2.

// ---- Arguments ------------------------------------------------------------------------------------------------------

template <class T>
inline constexpr bool kIsJson = std::is_same_v<T, Value> || std::is_same_v<T, AttributedString>;

/// A number as a T: NaN is no time point, and flags are read as an integer.
template <class T, class Number>
requires std::is_arithmetic_v<Number>
[[nodiscard]] T taken(Number number) { return static_cast<T>(number); }

/// A text as a T.
template <class T>
[[nodiscard, gnu::always_inline]] inline decltype(auto) taken(const char* text) {
  if constexpr (std::is_same_v<T, Dictionary>) {
    return port::perThread<OptionsMemo>().read(text);
  } else {
    return catalogue::Argument<T>::read(kIsJson<T> ? jsonFrom(text) : stringFrom(text));
  }
}

// ---- Results --------------------------------------------------------------------------------------------------------

[[nodiscard]] inline double returned(double number) { return number; }
[[nodiscard]] inline int returned(bool boolean) { return boolean ? 1 : 0; }
[[nodiscard]] inline double returned(const TimePoint& t) {
  return t.value_or(std::numeric_limits<double>::quiet_NaN());
}

/// Every other result is a text, a bare one or JSON; NULL where there is none.
template <class R>
[[nodiscard, gnu::always_inline]] inline char* returned(const R& result) {
  if constexpr (catalogue::IsText<R>) {
    const std::optional<std::string_view> text = catalogue::bareText(result);
    return text.has_value() ? copyOf(*text) : nullptr;
  } else {
    constexpr std::size_t kMostResults = 256;  // bytes
    std::string json;
    json.reserve(kMostResults);
    catalogue::appendJson(json, result);
    return copyOf(json);
  }
}

template <class T>
requires(!catalogue::IsText<std::optional<T>>) [[nodiscard]] char* returned(const std::optional<T>& result) {
  return result.has_value() ? returned(*result) : nullptr;
}

// What a call gives that fails.
template <class C>
inline constexpr C kFailure = C();
template <>
inline constexpr double kFailure<double> = std::numeric_limits<double>::quiet_NaN();

// ---- Calls ----------------------------------------------------------------------------------------------------------

template <auto F, class R, class... A, bool N, class... C>
auto applied(R (*)(A...) noexcept(N), C... arguments) noexcept {
  using Returned = decltype(returned(std::declval<R>()));
  if constexpr (std::is_pointer_v<Returned>) settleLocale();
  return guarded(kFailure<Returned>, [&] {
    // Braces: read from the first to the last.
    const std::tuple<decltype(taken<std::remove_cvref_t<A>>(arguments))...> read{
        taken<std::remove_cvref_t<A>>(arguments)...};
    return returned(std::apply(F, read));
  });
}

template <auto F, class... C>
auto call(C... arguments) noexcept {
  return applied<F>(F, arguments...);
}

}  // namespace kzm::c

#endif
