#include "tools/strings/catalog.h"

#include <algorithm>

#include "port/ascii.h"

namespace kzm::strings {
namespace {

namespace fs = std::filesystem;

bool isRegion(std::string_view subtag) {
  return (subtag.size() == 3 && std::ranges::all_of(subtag, port::isDigit)) ||
         (subtag.size() == 2 && std::ranges::all_of(subtag, port::isUpper));
}

std::vector<Entry> inherited(std::vector<Entry> entries) {
  for (Entry& entry : entries) entry.isInherited = true;
  return entries;
}

}  // namespace

const Table* Catalog::find(std::string_view language, std::string_view name) const {
  const auto found = std::ranges::find_if(
      tables, [&](const Table& table) { return table.language == language && table.name == name; });
  return found == tables.end() ? nullptr : &*found;
}

const Table* Catalog::parent(const Table& table) const {
  const auto language = withoutRegion(table.language);
  return language ? find(*language, table.name) : nullptr;
}

Catalog readCatalog(const std::vector<fs::path>& paths, Faults& faults) {
  Catalog catalog;
  for (const fs::path& path : paths) {
    try {
      catalog.tables.push_back(readTable(path));
    } catch (const Unreadable& unreadable) {
      faults.push_back(unreadable.fault);
    }
  }
  return catalog;
}

std::vector<fs::path> tablePaths(const fs::path& folder) {
  std::vector<fs::path> paths;
  for (const auto& language : fs::directory_iterator(folder)) {
    if (language.path().extension() != ".lproj") continue;
    for (const auto& file : fs::directory_iterator(language)) {
      if (file.path().extension() == ".strings") paths.push_back(file.path());
    }
  }
  std::ranges::sort(paths);
  return paths;
}

std::optional<std::string> withoutRegion(std::string_view language) {
  const std::size_t last = language.rfind('-');
  if (last == std::string_view::npos || !isRegion(language.substr(last + 1))) return std::nullopt;
  return std::string(language.substr(0, last));
}

Table completed(const Catalog& catalog, const Table& table) {
  const Table* parent = catalog.parent(table);
  if (parent == nullptr) return table;
  Table whole = table;
  whole.entries = inherited(completed(catalog, *parent).entries);
  for (Entry& entry : whole.entries) {
    if (const Entry* own = table.find(entry.key)) entry = *own;
  }
  return whole;
}

}  // namespace kzm::strings
