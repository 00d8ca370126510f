#include "tools/strings/cpp_source.h"

#include <algorithm>
#include <vector>

namespace kzm::strings {
namespace {

void writeTexts(std::ostream& out, const Table& table, std::size_t index) {
  std::vector<Entry> sorted = table.entries;
  std::ranges::sort(sorted, {}, &Entry::key);
  out << "constexpr LocalizedText kTexts" << index << "[] = {\n";
  for (const Entry& entry : sorted) out << "    {" << literalOf(entry.key) << ", " << literalOf(entry.text) << "},\n";
  out << "};\n\n";
}

}  // namespace

void writeSource(std::ostream& out, const Catalog& catalog) {
  const std::vector<Table>& tables = catalog.tables;
  out << "// Written by tools/strings from the string tables; changes belong there.\n"
         "#include <KZMUtilities/resources.h>\n\nnamespace kzm {\nnamespace {\n\n";
  for (std::size_t i = 0; i < tables.size(); ++i) writeTexts(out, completed(catalog, tables[i]), i);
  out << "constexpr StringTable kTables[] = {\n";
  for (std::size_t i = 0; i < tables.size(); ++i) {
    out << "    {" << literalOf(tables[i].language) << ", " << literalOf(tables[i].name) << ", kTexts" << i << "},\n";
  }
  out << "};\n\nconstexpr ResourceBundle kBundle{kBundleIdentifier, " << literalOf(kDevelopmentLanguage)
      << ", kTables};\n\n}  // namespace\n\n"
         "const ResourceBundle* bundleWithIdentifier(std::string_view identifier) noexcept {\n"
         "  return identifier == kBundleIdentifier ? &kBundle : nullptr;\n}\n\n}  // namespace kzm\n";
}

}  // namespace kzm::strings
