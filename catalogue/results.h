// How each kind of result looks, as JSON or, where it is one, as a bare text.
#ifndef KZM_CATALOGUE_RESULTS_H
#define KZM_CATALOGUE_RESULTS_H

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dates.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/formatters.h>

#include "catalogue/json_text.h"

namespace kzm::catalogue {

/// What `kzmutil list --json` calls a result of type R.
template <class R>
inline constexpr std::string_view kResultName{};
// clang-format off
template <> inline constexpr std::string_view kResultName<double>                                 = "double";
template <> inline constexpr std::string_view kResultName<bool>                                   = "boolean";
template <> inline constexpr std::string_view kResultName<TimePoint>                              = "time|null";
template <> inline constexpr std::string_view kResultName<std::string>                            = "string";
template <> inline constexpr std::string_view kResultName<std::optional<std::string>>             = "string|null";
template <> inline constexpr std::string_view kResultName<MeasurementUnit>                        = "unit";
template <> inline constexpr std::string_view kResultName<std::shared_ptr<const Locale>>          = "locale";
template <> inline constexpr std::string_view kResultName<Array>                                  = "array";
template <> inline constexpr std::string_view kResultName<Dictionary>                             = "dictionary";
template <> inline constexpr std::string_view kResultName<std::optional<Dictionary>>              = "dictionary|null";
template <> inline constexpr std::string_view kResultName<std::optional<DateComponents>>          = "dictionary|null";
template <> inline constexpr std::string_view kResultName<AttributedString>                       = "attributedstring";
template <> inline constexpr std::string_view kResultName<std::shared_ptr<const NumberFormatter>> = "formatter";
// clang-format on

// Results that are texts. A text lives as long as the result; nothing is JSON null.
[[nodiscard]] std::optional<std::string_view> bareText(const std::string& text);
[[nodiscard]] std::optional<std::string_view> bareText(const std::optional<std::string>& text);
[[nodiscard]] std::optional<std::string_view> bareText(const MeasurementUnit& unit);
[[nodiscard]] std::optional<std::string_view> bareText(const std::shared_ptr<const Locale>& locale);

template <class R>
concept IsText = requires(const R& result) {
  bareText(result);
};

// All others, beside those that every JSON text can hold.
void appendJson(std::string& json, const bool& boolean);
void appendJson(std::string& json, const TimePoint& t);
void appendJson(std::string& json, const Array& array);
void appendJson(std::string& json, const std::optional<Dictionary>& dictionary);
void appendJson(std::string& json, const DateComponents& components);
void appendJson(std::string& json, const std::optional<DateComponents>& components);
void appendJson(std::string& json, const std::shared_ptr<const NumberFormatter>& formatter);

}  // namespace kzm::catalogue

#endif
