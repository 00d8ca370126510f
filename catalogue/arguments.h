// How each kind of argument looks in JSON: one specialization each.
#ifndef KZM_CATALOGUE_ARGUMENTS_H
#define KZM_CATALOGUE_ARGUMENTS_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dates.h>
#include <KZMUtilities/formatters.h>

#include "catalogue/json.h"

namespace kzm::catalogue {

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

}  // namespace kzm::catalogue

#endif
