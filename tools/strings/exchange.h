// String tables out to PO files and back, so that the usual translation sites and editors can be used.
#ifndef TOOLS_STRINGS_EXCHANGE_H
#define TOOLS_STRINGS_EXCHANGE_H

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tools/strings/catalog.h"
#include "tools/strings/po.h"

namespace kzm::strings {

/// Writes the texts of a language, with what a translator has to know of each: where it is used, hints, how wide it may
/// be, its source and its reviewer. Of a layer, its own texts; of the development language and of one that has no table
/// yet, none.
void writeCatalog(std::ostream& out, const Catalog& catalog, std::string_view language);

/// What the file of a table becomes with the translations of these messages.
struct Import {
  std::string content;
  std::vector<std::string> changed;  // keys
  Faults faults;                     // of the messages
};

/// Messages of other tables are passed over. Texts that are empty or fuzzy stay as they are, but for an empty one of a
/// layer, which then has its parent's. A text that differs takes the translator that the header names as its source.
[[nodiscard]] Import importCatalog(const Catalog& catalog, std::string_view language, std::string_view name,
                                   const std::string& path, const std::vector<Message>& messages);

}  // namespace kzm::strings

#endif
