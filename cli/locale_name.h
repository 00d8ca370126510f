// Whether a locale that somebody typed is one.
#ifndef KZM_CLI_LOCALE_NAME_H
#define KZM_CLI_LOCALE_NAME_H

#include <string_view>

namespace kzm::cli {

enum class LocaleName { good, malformed, unknownLanguage };

/// Good are C, POSIX, and names in the form of POSIX or ICU ("de_CH.UTF-8", "sr_RS@latin", "hi_IN@numbers=deva",
/// "de-CH") whose language has a code of three letters, whether or not there are texts or number styles of it.
[[nodiscard]] LocaleName judgeLocaleName(std::string_view name);

}  // namespace kzm::cli

#endif
