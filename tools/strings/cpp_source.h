// The string tables as one C++ source, in which the library finds them.
#ifndef TOOLS_STRINGS_CPP_SOURCE_H
#define TOOLS_STRINGS_CPP_SOURCE_H

#include <ostream>

#include "tools/strings/catalog.h"

namespace kzm::strings {

/// Writes each table with all its rows, sorted by key; a layer has those of its parent too.
void writeSource(std::ostream& out, const Catalog& catalog);

}  // namespace kzm::strings

#endif
