// How far the languages are, and where each text comes from.
#ifndef TOOLS_STRINGS_REPORT_H
#define TOOLS_STRINGS_REPORT_H

#include <ostream>

#include "tools/strings/catalog.h"

namespace kzm::strings {

/// One line for each table: how many texts it has itself, how many of these are the English ones, how many somebody has
/// reviewed, how many differ from Unicode's unit data, and how many come from each source.
void reportAll(std::ostream& out, const Catalog& catalog);

/// One line for each text of a table: place, key, text, source, reviewer, and whether Unicode's data differ.
void reportTexts(std::ostream& out, const Table& table);

}  // namespace kzm::strings

#endif
