// Which locales the user asked for, read from the environment without ever touching the process's own locale.
//
// POSIX orders the variables by purpose: LC_ALL, then the category's own one, then LANG; a variable that is set but
// empty counts as unset. Names are given in either of the two usual ways, as POSIX names ("de_CH.UTF-8",
// "sr_RS@latin") or as ICU and BCP 47 identifiers ("zh_Hant_TW", "hi_IN@numbers=deva", "de-CH").
//
// Everything here is a pure function of its arguments and may be called from any thread.
#ifndef KZM_PORT_ENVIRONMENT_LOCALE_H
#define KZM_PORT_ENVIRONMENT_LOCALE_H

#include <string>
#include <string_view>
#include <vector>

#include "port/environment.h"

namespace kzm::port {

/// What the locale rules fall back to: English words and grouped numbers with metric units.
inline constexpr std::string_view kFallbackLocale = "en_001";

/// The ICU identifier of the locale whose numbers are wanted: LC_ALL, LC_NUMERIC, LANG. Always a usable one.
[[nodiscard]] std::string numberLocale(const Environment& environment = processEnvironment);

/// The same for the user's units of measurement: LC_ALL, LC_MEASUREMENT, LANG.
[[nodiscard]] std::string measurementLocale(const Environment& environment = processEnvironment);

/// The same for the way dates and weeks are counted: LC_ALL, LC_TIME, LANG.
[[nodiscard]] std::string dateLocale(const Environment& environment = processEnvironment);

/// The identifiers of the languages in which texts are wanted, best first; empty means English. LANGUAGE holds a list,
/// separated by colons, that goes before the message locale (LC_ALL, LC_MESSAGES, LANG), but counts only when there is
/// one: with plain C, plain POSIX or nothing at all the texts stay English. C.UTF-8 is a message locale. An entry "C"
/// ends the list; malformed ones are left out.
[[nodiscard]] std::vector<std::string> textLocales(const Environment& environment = processEnvironment);

/// The canonical ICU identifier for a locale name ("iw_IL.UTF-8" -> "he_IL"), whether or not ICU knows the language.
/// The codeset is dropped; of POSIX modifiers, scripts go to their place ("sr_RS@latin" -> "sr_Latn_RS"), "@valencia"
/// stays as a variant, and others are dropped. Keywords such as "@numbers=deva" are kept. Empty when the name is
/// malformed or names no language, as C and POSIX do.
[[nodiscard]] std::string localeIdentifier(std::string_view name);

/// The same, but kFallbackLocale for whatever has no identifier and for languages that ICU has no data for, and without
/// the script where ICU has the language in other scripts alone ("be_Latn_BY" -> "be_BY"): those would otherwise be
/// shown in the style of whatever locale the process happened to start in.
[[nodiscard]] std::string usableLocale(std::string_view name);

}  // namespace kzm::port

#endif
