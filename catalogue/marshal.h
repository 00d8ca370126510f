// Carries JSON arguments into a C++ call, and its result back.
//
// `adapt<F>` makes a Callable's function of any function whose parameters and result are of the kinds that arguments
// and results list.
#ifndef KZM_CATALOGUE_MARSHAL_H
#define KZM_CATALOGUE_MARSHAL_H

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "catalogue/arguments.h"
#include "catalogue/results.h"

namespace kzm::catalogue {

/// A result: its JSON text, and the bare text when it is one.
struct Result {
  std::string json;
  std::optional<std::string> text;
};

template <class R>
Result resultOf(const R& result) {
  if constexpr (IsText<R>) {
    const std::optional<std::string_view> text = bareText(result);
    return text.has_value() ? Result{jsonText(*text), std::string(*text)} : Result{"null", std::nullopt};
  } else {
    Result written;
    appendJson(written.json, result);
    return written;
  }
}

template <class R, class... A, bool N>
Result applyFunction(R (*function)(A...) noexcept(N), const Json& arguments) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    const std::tuple read{Argument<std::remove_cvref_t<A>>::read(arguments[I])...};
    return resultOf(function(std::get<I>(read)...));
  }
  (std::index_sequence_for<A...>());
}

/// A function that takes the JSON arguments, as many as F has parameters, and answers with F's result.
template <auto F>
Result adapt(const Json& arguments) {
  return applyFunction(F, arguments);
}

/// The kinds of F's parameters, as `list` names them.
template <class R, class... A, bool N>
constexpr auto kindsOf(R (*)(A...) noexcept(N)) {
  return std::array<std::string_view, sizeof...(A)>{Argument<std::remove_cvref_t<A>>::name...};
}
template <auto F>
inline constexpr auto kKinds = kindsOf(F);

/// The kind of F's result.
template <class R, class... A, bool N>
constexpr std::string_view resultKindOf(R (*)(A...) noexcept(N)) {
  return kResultName<R>;
}
template <auto F>
inline constexpr std::string_view kResultKind = resultKindOf(F);

}  // namespace kzm::catalogue

#endif
