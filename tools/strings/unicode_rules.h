// What each text must be as Unicode data say. Apart from the other rules, since the build has to do without ICU.
#ifndef TOOLS_STRINGS_UNICODE_RULES_H
#define TOOLS_STRINGS_UNICODE_RULES_H

#include "tools/strings/catalog.h"

namespace kzm::strings {

/// The faults of a completed table: characters that do not belong in a text, other forms than NFC, scripts mixed in a
/// word, texts that are too wide, and texts that are not what the source that they name says.
[[nodiscard]] Faults unicodeFaults(const Table& table);

}  // namespace kzm::strings

#endif
