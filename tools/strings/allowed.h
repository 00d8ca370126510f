// What may be in a text against a rule, written down case by case.
#ifndef TOOLS_STRINGS_ALLOWED_H
#define TOOLS_STRINGS_ALLOWED_H

#include <cstddef>
#include <optional>
#include <string_view>

#include "tools/strings/key.h"

namespace kzm::strings {

/// Whether a text of this language may be the English one: symbols everywhere, words where a language shares them.
[[nodiscard]] bool mayEqualEnglish(std::string_view language, std::string_view unit);

/// Whether a unit in a text is an international symbol or abbreviation.
[[nodiscard]] bool isSymbol(std::string_view text);

/// Whether one word of this language may have letters of both scripts, given by their ISO 15924 codes.
[[nodiscard]] bool mayMixScripts(std::string_view language, std::string_view first, std::string_view second);

/// The width that a text may have, beside its number if it has one, in cells of a terminal; nothing when none is set.
[[nodiscard]] std::optional<std::size_t> widthLimit(const Key& key);

}  // namespace kzm::strings

#endif
