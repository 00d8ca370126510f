#include "tools/strings/cpp_source.h"

#include <map>
#include <string>
#include <vector>

namespace kzm::strings {
namespace {

// Writes a constant for each different list, once, and gives its name: most tables have the same keys.
class Lists {
 public:
  explicit Lists(std::ostream& out) : out_(out) {}

  std::string nameOf(const std::vector<Entry>& entries, std::string Entry::*column) {
    std::string literals;
    for (const Entry& entry : entries) {
      std::string literal = literalOf(entry.*column);
      literal.insert(literal.size() - 1, "\\0");
      literals.append("\n    ").append(literal);
    }
    const auto [list, isNew] = names_.try_emplace(literals, "kList" + std::to_string(names_.size()));
    if (isNew) out_ << "constexpr char " << list->second << "[] =" << literals << ";\n\n";
    return "{" + list->second + ", sizeof " + list->second + " - 1}";
  }

 private:
  std::ostream& out_;
  std::map<std::string, std::string> names_;
};

}  // namespace

void writeSource(std::ostream& out, const Catalog& catalog) {
  out << "// Written by tools/strings from the string tables; changes belong there.\n"
         "#include <KZMUtilities/resources.h>\n\nnamespace kzm {\nnamespace {\n\n";
  Lists lists(out);
  std::string rows;
  for (const Table& table : catalog.tables) {
    const std::vector<Entry> entries = completed(catalog, table).entries;
    const std::string keys = lists.nameOf(entries, &Entry::key);
    const std::string texts = lists.nameOf(entries, &Entry::text);
    rows.append("    {").append(literalOf(table.language)).append(", ").append(literalOf(table.name));
    rows.append(", ").append(keys).append(", ").append(texts).append("},\n");
  }
  out << "constexpr StringTable kTables[] = {\n"
      << rows << "};\n\nconstexpr ResourceBundle kBundle{kBundleIdentifier, " << literalOf(kDevelopmentLanguage)
      << ", kTables};\n\n}  // namespace\n\n"
         "const ResourceBundle* bundleWithIdentifier(std::string_view identifier) noexcept {\n"
         "  return identifier == kBundleIdentifier ? &kBundle : nullptr;\n}\n\n}  // namespace kzm\n";
}

}  // namespace kzm::strings
