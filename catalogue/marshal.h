// Carries JSON arguments into a C++ call, and its result back.
//
// `adapt<F>` makes a Callable's function of any function whose parameters and result are of the kinds listed here; what
// each kind looks like in JSON is one specialisation.
#ifndef KZM_CATALOGUE_MARSHAL_H
#define KZM_CATALOGUE_MARSHAL_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dates.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/formatters.h>

#include "catalogue/errors.h"
#include "catalogue/json.h"

namespace kzm::catalogue {

/// A result: its JSON text, and the bare text when it is a string.
struct Result {
  std::string json;
  std::optional<std::string> text;
};

/// How a parameter of type T is read. `name` is what `kzmutil list` calls it; `read` throws InputError.
template <class T>
struct Argument;

template <>
struct Argument<double> {
  static constexpr std::string_view name = "double";
  static double read(const Json& json);
};

template <>
struct Argument<std::int64_t> {
  static constexpr std::string_view name = "integer";
  static std::int64_t read(const Json& json);
};

template <>
struct Argument<std::string_view> {
  static constexpr std::string_view name = "string";
  static std::string read(const Json& json);
};

template <>
struct Argument<Dictionary> {
  static constexpr std::string_view name = "dictionary";
  static Dictionary read(const Json& json);
};

template <>
struct Argument<std::shared_ptr<const Locale>> {
  static constexpr std::string_view name = "locale";
  static std::shared_ptr<const Locale> read(const Json& json);
};

template <>
struct Argument<std::optional<std::string>> {
  static constexpr std::string_view name = "string|null";
  static std::optional<std::string> read(const Json& json);
};

template <>
struct Argument<TimePoint> {
  static constexpr std::string_view name = "time|null";
  static TimePoint read(const Json& json);
};

template <>
struct Argument<TimeZone> {
  static constexpr std::string_view name = "timezone";
  static TimeZone read(const Json& json);
};

template <>
struct Argument<CalendarUnits> {
  static constexpr std::string_view name = "units";
  static CalendarUnits read(const Json& json);
};

/// A set of text attributes, carried through unread.
template <>
struct Argument<Value> {
  static constexpr std::string_view name = "attributes";
  static Value read(const Json& json);
};

template <>
struct Argument<AttributedString> {
  static constexpr std::string_view name = "attributedstring";
  static AttributedString read(const Json& json);
};

[[nodiscard]] Result resultOf(double number);
[[nodiscard]] Result resultOf(bool boolean);
[[nodiscard]] Result resultOf(std::int64_t integer);
[[nodiscard]] Result resultOf(const std::string& text);
[[nodiscard]] Result resultOf(const std::optional<std::string>& text);
[[nodiscard]] Result resultOf(const Array& array);
[[nodiscard]] Result resultOf(const TimePoint& t);
[[nodiscard]] Result resultOf(const std::optional<DateComponents>& components);
[[nodiscard]] Result resultOf(const Dictionary& dictionary);
[[nodiscard]] Result resultOf(const std::optional<Dictionary>& dictionary);
[[nodiscard]] Result resultOf(MeasurementUnit unit);
[[nodiscard]] Result resultOf(const AttributedString& text);
[[nodiscard]] Result resultOf(const std::shared_ptr<const Locale>& locale);
[[nodiscard]] Result resultOf(const std::shared_ptr<const NumberFormatter>& formatter);

/// What `kzmutil list --json` calls a result of type R.
template <class R>
inline constexpr std::string_view kResultName = Argument<R>::name;
template <>
inline constexpr std::string_view kResultName<bool> = "boolean";
template <>
inline constexpr std::string_view kResultName<std::string> = "string";
template <>
inline constexpr std::string_view kResultName<Array> = "array";
template <>
inline constexpr std::string_view kResultName<std::optional<DateComponents>> = "dictionary|null";
template <>
inline constexpr std::string_view kResultName<std::optional<Dictionary>> = "dictionary|null";
template <>
inline constexpr std::string_view kResultName<MeasurementUnit> = "unit";
template <>
inline constexpr std::string_view kResultName<std::shared_ptr<const NumberFormatter>> = "formatter";

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
