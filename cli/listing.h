// Lists within a line.
#ifndef KZM_CLI_LISTING_H
#define KZM_CLI_LISTING_H

#include <string>
#include <string_view>

namespace kzm::cli {

/// Adds the item at the end of the list, after a comma unless it is the first.
inline void addToList(std::string& list, std::string_view item) { list.append(list.empty() ? "" : ", ").append(item); }

}  // namespace kzm::cli

#endif
