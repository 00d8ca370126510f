// Checks the string tables and writes them as one C++ source: compile_strings LANGUAGE OUTPUT TABLE...
//
// LANGUAGE is the development language, whose tables say which keys there are and in what order; each TABLE is a file
// <language>.lproj/<name>.strings of lines  "key" = "text";  and comments. The first fault found is told in one line,
// with its place, and nothing is written. Texts are handed on as they stand: what is checked here is what lets the
// library fill them in blindly, above all that every text has the slots of its key.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "Units.";

struct Entry {
  std::string key;
  std::string text;
  std::size_t line;
};

struct Table {
  std::string path;
  std::string language;
  std::string name;
  std::vector<Entry> entries;
};

/// A fault in a table, told as path:line: what is wrong.
struct Fault : std::runtime_error {
  Fault(const std::string& path, std::size_t line, const std::string& what)
      : std::runtime_error(path + ":" + std::to_string(line) + ": " + what) {}
};

// UTF-8 ---------------------------------------------------------------------------------------------------------------

/// The length of the well-formed sequence at the start of `text`, which is not empty; 0 when it is ill-formed.
std::size_t sequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
  const auto continues = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
  const unsigned first = byte(0);
  const unsigned second = byte(1);
  if (first < 0x80U) return 1;
  if (first >= 0xC2U && first <= 0xDFU && continues(1)) return 2;
  if (first >= 0xE0U && first <= 0xEFU && continues(1) && continues(2)) {
    const bool tooLong = first == 0xE0U && second < 0xA0U;
    const bool surrogate = first == 0xEDU && second > 0x9FU;
    return tooLong || surrogate ? 0 : 3;
  }
  if (first >= 0xF0U && first <= 0xF4U && continues(1) && continues(2) && continues(3)) {
    const bool tooLong = first == 0xF0U && second < 0x90U;
    const bool beyond = first == 0xF4U && second > 0x8FU;
    return tooLong || beyond ? 0 : 4;
  }
  return 0;
}

std::size_t lineAt(std::string_view text, std::size_t position) {
  return 1 + static_cast<std::size_t>(std::ranges::count(text.substr(0, position), '\n'));
}

void checkEncoding(const std::string& path, std::string_view text) {
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t length = sequenceLength(text.substr(position));
    if (length == 0) throw Fault(path, lineAt(text, position), "not valid UTF-8");
    position += length;
  }
}

// Reading -------------------------------------------------------------------------------------------------------------

/// Reads the entries of one table, front to back.
class Reader {
 public:
  Reader(std::string path, std::string_view text) : path_(std::move(path)), text_(text) {}

  std::vector<Entry> entries() {
    std::vector<Entry> entries;
    for (skipBlanks(); position_ < text_.size(); skipBlanks()) entries.push_back(entry());
    return entries;
  }

 private:
  Entry entry() {
    const std::size_t line = lineAt(text_, position_);
    std::string key = inQuotes("a key");
    expect('=');
    skipBlanks();
    std::string text = inQuotes("a text");
    expect(';');
    return {std::move(key), std::move(text), line};
  }

  std::string inQuotes(const std::string& what) {
    if (peek() != '"') fail("expected " + what + " in double quotes");
    ++position_;
    std::string content;
    while (peek() != '"') content += character();
    ++position_;
    return content;
  }

  char character() {
    char c = peek();
    if (c == '\\') {
      ++position_;
      c = peek();
      if (c != '"' && c != '\\') fail("only \\\" and \\\\ are escapes");
    } else if (static_cast<unsigned char>(c) < 0x20U) {
      fail(position_ < text_.size() ? "a quoted text ends on its line and holds no control character"
                                    : "the quoted text has no end");
    }
    ++position_;
    return c;
  }

  void expect(char wanted) {
    skipBlanks();
    if (peek() != wanted) fail(std::string("expected ") + wanted);
    ++position_;
  }

  void skipBlanks() {
    while (position_ < text_.size()) {
      if (text_.substr(position_).starts_with("/*")) {
        const std::size_t end = text_.find("*/", position_ + 2);
        if (end == std::string_view::npos) fail("the comment has no end");
        position_ = end + 2;
      } else if (std::string_view(" \t\r\n").find(peek()) != std::string_view::npos) {
        ++position_;
      } else {
        return;
      }
    }
  }

  [[nodiscard]] char peek() const { return position_ < text_.size() ? text_[position_] : '\0'; }

  [[noreturn]] void fail(const std::string& what) const { throw Fault(path_, lineAt(text_, position_), what); }

  std::string path_;
  std::string_view text_;
  std::size_t position_ = 0;
};

Table readTable(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  if (!file) throw std::runtime_error(path.string() + ": cannot be read");
  const fs::path folder = path.parent_path().filename();
  if (folder.extension() != ".lproj" || path.extension() != ".strings") {
    throw std::runtime_error(path.string() + ": not of the form <language>.lproj/<name>.strings");
  }
  checkEncoding(path.string(), text);
  return {path.string(), folder.stem().string(), path.stem().string(), Reader(path.string(), text).entries()};
}

// Checking ------------------------------------------------------------------------------------------------------------

/// The key without "Units.<letters>."; nothing when it has no such prefix.
std::optional<std::string_view> templateOf(std::string_view key) {
  if (!key.starts_with(kPrefix)) return std::nullopt;
  key.remove_prefix(kPrefix.size());
  const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  const auto letters = static_cast<std::size_t>(std::ranges::find_if_not(key, isLetter) - key.begin());
  if (letters == 0 || letters == key.size() || key[letters] != '.') return std::nullopt;
  return key.substr(letters + 1);
}

struct Slots {
  int numbers = 0;   // %@
  int percents = 0;  // %%, or a percent sign of another script
  bool operator==(const Slots&) const = default;
};

/// What a text may say instead of the "%%" of its key.
constexpr std::string_view kPercentSigns[] = {
    "\u066A",  // Arabic
};

int percentSignsIn(std::string_view text) {
  int count = 0;
  for (const std::string_view sign : kPercentSigns) {
    for (std::size_t at = text.find(sign); at != std::string_view::npos; at = text.find(sign, at + 1)) ++count;
  }
  return count;
}

/// What a template has to be filled in; nothing when it holds a "%" that is none of the two.
std::optional<Slots> slotsOf(std::string_view text) {
  Slots slots{.percents = percentSignsIn(text)};
  for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 2)) {
    const char directive = at + 1 < text.size() ? text[at + 1] : '\0';
    if (directive != '@' && directive != '%') return std::nullopt;
    ++(directive == '@' ? slots.numbers : slots.percents);
  }
  return slots;
}

void checkEntry(const Table& table, const Entry& entry) {
  const auto fail = [&](const std::string& what) { throw Fault(table.path, entry.line, what); };
  const auto pattern = templateOf(entry.key);
  if (!pattern || pattern->empty()) fail("the key \"" + entry.key + "\" is not \"Units.<family>.<template>\"");
  if (entry.text.empty()) fail("the text of \"" + entry.key + "\" is empty");
  if (entry.text.find(kPrefix) != std::string::npos) fail("a key's prefix in the text of \"" + entry.key + "\"");
  const auto slots = slotsOf(entry.text);
  if (!slots) fail("a \"%\" other than %@ and %% in the text of \"" + entry.key + "\"");
  if (slots != slotsOf(*pattern)) fail("the text of \"" + entry.key + "\" has other slots than its key");
}

void checkTable(const Table& table) {
  std::set<std::string_view> keys;
  for (const Entry& entry : table.entries) {
    if (!keys.insert(entry.key).second) throw Fault(table.path, entry.line, "\"" + entry.key + "\" stands twice");
    checkEntry(table, entry);
  }
}

/// In the development language a text is its key's template, so that code and table cannot drift apart.
void checkDevelopmentTable(const Table& table) {
  for (const Entry& entry : table.entries) {
    if (entry.text == templateOf(entry.key)) continue;
    throw Fault(table.path, entry.line, "the text of \"" + entry.key + "\" is not the template that the key ends in");
  }
}

bool hasKey(const Table& table, std::string_view key) {
  return std::ranges::find(table.entries, key, &Entry::key) != table.entries.end();
}

/// The same keys in the same order as in the development language.
void checkKeys(const Table& table, const Table& development) {
  for (const Entry& entry : table.entries) {
    if (!hasKey(development, entry.key)) throw Fault(table.path, entry.line, "unknown key \"" + entry.key + "\"");
  }
  const std::size_t last = table.entries.empty() ? 1 : table.entries.back().line;
  for (const Entry& entry : development.entries) {
    if (!hasKey(table, entry.key)) throw Fault(table.path, last, "the key \"" + entry.key + "\" is missing");
  }
  for (std::size_t i = 0; i < table.entries.size(); ++i) {
    const Entry& entry = table.entries[i];
    if (entry.key == development.entries[i].key) continue;
    throw Fault(table.path, entry.line, "out of order: \"" + development.entries[i].key + "\" goes here");
  }
}

/// The tables of the development language by name, checked before anything is compared with them.
std::map<std::string, const Table*> developmentTables(const std::vector<Table>& tables, const std::string& language) {
  std::map<std::string, const Table*> found;
  for (const Table& table : tables) {
    if (table.language != language) continue;
    if (table.entries.empty()) throw Fault(table.path, 1, "no entries");
    checkTable(table);
    checkDevelopmentTable(table);
    found[table.name] = &table;
  }
  return found;
}

void checkAll(const std::vector<Table>& tables, const std::string& developmentLanguage) {
  const auto development = developmentTables(tables, developmentLanguage);
  std::set<std::string> seen;
  for (const Table& table : tables) {
    if (!seen.insert(table.language + "/" + table.name).second) {
      throw std::runtime_error(table.path + ": a second table of this language and name");
    }
    const auto found = development.find(table.name);
    if (found == development.end()) {
      throw std::runtime_error(table.path + ": there is no such table in " + developmentLanguage);
    }
    checkTable(table);
    checkKeys(table, *found->second);
  }
}

// Writing -------------------------------------------------------------------------------------------------------------

std::string literal(std::string_view text) {
  std::string escaped = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') escaped += '\\';
    escaped += c;
  }
  return escaped + '"';
}

void writeTexts(std::ostream& out, const Table& table, std::size_t index) {
  std::vector<Entry> sorted = table.entries;
  std::ranges::sort(sorted, {}, &Entry::key);
  out << "constexpr LocalizedText kTexts" << index << "[] = {\n";
  for (const Entry& entry : sorted) out << "    {" << literal(entry.key) << ", " << literal(entry.text) << "},\n";
  out << "};\n\n";
}

void writeSource(std::ostream& out, const std::vector<Table>& tables, const std::string& developmentLanguage) {
  out << "// Written by tools/compile_strings from the string tables; changes belong there.\n"
         "#include <KZMUtilities/resources.h>\n\nnamespace kzm {\nnamespace {\n\n";
  for (std::size_t i = 0; i < tables.size(); ++i) writeTexts(out, tables[i], i);
  out << "constexpr StringTable kTables[] = {\n";
  for (std::size_t i = 0; i < tables.size(); ++i) {
    out << "    {" << literal(tables[i].language) << ", " << literal(tables[i].name) << ", kTexts" << i << "},\n";
  }
  out << "};\n\nconstexpr ResourceBundle kBundle{kBundleIdentifier, " << literal(developmentLanguage)
      << ", kTables};\n\n}  // namespace\n\n"
         "const ResourceBundle* bundleWithIdentifier(std::string_view identifier) noexcept {\n"
         "  return identifier == kBundleIdentifier ? &kBundle : nullptr;\n}\n\n}  // namespace kzm\n";
}

void compile(const std::string& developmentLanguage, const fs::path& output, const std::vector<fs::path>& paths) {
  std::vector<Table> tables;
  std::ranges::transform(paths, std::back_inserter(tables), readTable);
  checkAll(tables, developmentLanguage);
  std::ofstream file(output, std::ios::binary);
  writeSource(file, tables, developmentLanguage);
  file.close();
  if (!file) throw std::runtime_error(output.string() + ": cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::cerr << "usage: compile_strings LANGUAGE OUTPUT TABLE...\n";
    return 2;
  }
  try {
    compile(argv[1], argv[2], {argv + 3, argv + argc});
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
