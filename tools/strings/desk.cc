// The translator's desk: checks string tables, reports on them, and exchanges them with PO files.
#include <algorithm>
#include <cctype>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tools/strings/exchange.h"
#include "tools/strings/report.h"
#include "tools/strings/rules.h"
#include "tools/strings/unicode_rules.h"

namespace kzm::strings {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kUsage =
    "usage: kzm_strings_desk FOLDER VERB [ARGUMENT...]\n"
    "\n"
    "  check [LANGUAGE]      what is wrong in the tables, each with its path and line\n"
    "  report [LANGUAGE]     how far all languages are; with LANGUAGE, where each of its texts comes from\n"
    "  export LANGUAGE FILE  write the texts of a language as a PO file\n"
    "  import LANGUAGE FILE  take the texts of a PO file into the table of a language, which may be a new one\n"
    "\n"
    "FOLDER holds the tables, <language>.lproj/<name>.strings.\n";

/// Ends a verb that cannot do what it was asked for.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

using Arguments = std::vector<std::string>;

int complain(const Faults& faults) {
  for (const Fault& fault : faults) std::cerr << asLine(fault) << '\n';
  return faults.empty() ? 0 : 1;
}

/// The tag becomes a part of a path.
void needTag(std::string_view language) {
  const auto belongs = [](unsigned char c) { return std::isalnum(c) != 0 || c == '-'; };
  if (language.empty() || !std::ranges::all_of(language, belongs)) {
    throw Failure('"' + std::string(language) + "\" is no language tag");
  }
}

void needTable(const Catalog& catalog, const std::string& language) {
  if (std::ranges::find(catalog.tables, language, &Table::language) != catalog.tables.end()) return;
  throw Failure("there is no table of the language \"" + language + '"');
}

/// All faults, or those of one language.
Faults faultsOf(const Catalog& catalog, std::string_view language) {
  Faults faults = plainFaults(catalog);
  for (const Table& table : catalog.tables) {
    const auto isOfTable = [&](const Fault& fault) { return fault.path == table.path; };
    if (!language.empty() && table.language != language) {
      std::erase_if(faults, isOfTable);
    } else if (std::ranges::none_of(faults, isOfTable)) {
      std::ranges::copy(unicodeFaults(completed(catalog, table)), std::back_inserter(faults));
    }
  }
  std::ranges::stable_sort(faults, {}, &Fault::path);
  return faults;
}

int check(const Catalog& catalog, const fs::path& /*folder*/, const Arguments& arguments) {
  if (!arguments.empty()) needTable(catalog, arguments[0]);
  return complain(faultsOf(catalog, arguments.empty() ? "" : arguments[0]));
}

int report(const Catalog& catalog, const fs::path& /*folder*/, const Arguments& arguments) {
  if (arguments.empty()) {
    reportAll(std::cout, catalog);
    return 0;
  }
  needTable(catalog, arguments[0]);
  for (const Table& table : catalog.tables) {
    if (table.language == arguments[0]) reportTexts(std::cout, table);
  }
  return 0;
}

void writeFile(const fs::path& path, const std::string& content) {
  std::ofstream file(path, std::ios::binary);
  file << content;
  file.close();
  if (!file) throw Failure(path.string() + " cannot be written");
}

int exportTexts(const Catalog& catalog, const fs::path& /*folder*/, const Arguments& arguments) {
  needTag(arguments[0]);
  std::ostringstream texts;
  writeCatalog(texts, catalog, arguments[0]);
  writeFile(arguments[1], texts.str());
  return 0;
}

/// The names of the tables, as the development language has them.
std::vector<std::string> tableNames(const Catalog& catalog) {
  std::vector<std::string> names;
  for (const Table& table : catalog.tables) {
    if (table.language == kDevelopmentLanguage) names.push_back(table.name);
  }
  return names;
}

/// What the tables of a language become with the messages of a PO file.
struct Change {
  std::vector<Table> tables;  // with their new content
  std::vector<std::string> keys;
  Faults faults;
};

Change changeOf(const Catalog& catalog, const fs::path& folder, const std::string& language, const std::string& path,
                const std::vector<Message>& messages) {
  Change change;
  for (const std::string& name : tableNames(catalog)) {
    Import import = importCatalog(catalog, language, name, path, messages);
    change.faults = std::move(import.faults);
    if (!change.faults.empty()) break;
    if (import.changed.empty()) continue;
    change.tables.push_back(parseTable(folder / (language + ".lproj") / (name + ".strings"), import.content));
    std::ranges::move(import.changed, std::back_inserter(change.keys));
  }
  return change;
}

void put(Catalog& catalog, const Table& table) {
  const auto old = std::ranges::find(catalog.tables, table.path, &Table::path);
  if (old == catalog.tables.end()) {
    catalog.tables.push_back(table);
  } else {
    *old = table;
  }
}

/// The row that a fault is in.
const Entry* entryOf(const std::vector<Table>& tables, const Fault& fault) {
  const auto table = std::ranges::find(tables, fault.path, &Table::path);
  if (table == tables.end()) return nullptr;
  const auto entry = std::ranges::find(table->entries, fault.line, &Entry::line);
  return entry == table->entries.end() ? nullptr : &*entry;
}

/// What is wrong with the tables that an import makes, reported at the lines of the messages.
Faults faultsOfImport(Catalog catalog, const std::vector<Table>& tables, const std::string& language,
                      const std::string& path, const std::vector<Message>& messages) {
  for (const Table& table : tables) put(catalog, table);
  Faults faults = faultsOf(catalog, language);
  for (Fault& fault : faults) {
    const Entry* entry = entryOf(tables, fault);
    if (entry == nullptr) continue;
    const auto message = std::ranges::find(messages, entry->key, &Message::context);
    if (message != messages.end()) fault = {path, message->line, fault.what};
  }
  return faults;
}

std::vector<Message> readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string content{std::istreambuf_iterator<char>(file), {}};
  if (!file) throw Failure(path + " cannot be read");
  return readMessages(path, content);
}

int importTexts(const Catalog& catalog, const fs::path& folder, const Arguments& arguments) {
  const std::string& language = arguments[0];
  const std::string& path = arguments[1];
  needTag(language);
  if (language == kDevelopmentLanguage) throw Failure("the English texts are the keys");
  const std::vector<Message> messages = readFile(path);
  const Change change = changeOf(catalog, folder, language, path, messages);
  if (!change.faults.empty()) return complain(change.faults);
  const Faults faults = faultsOfImport(catalog, change.tables, language, path, messages);
  if (!faults.empty()) return complain(faults);
  for (const Table& table : change.tables) {
    fs::create_directories(fs::path(table.path).parent_path());
    writeFile(table.path, table.content);
  }
  for (const std::string& key : change.keys) std::cout << "changed: " << literalOf(key) << '\n';
  return 0;
}

struct Verb {
  std::string_view name;
  std::size_t least, most;  // arguments
  int (*run)(const Catalog& catalog, const fs::path& folder, const Arguments& arguments);
};
constexpr Verb kVerbs[] = {
    {"check", 0, 1, check},
    {"report", 0, 1, report},
    {"export", 2, 2, exportTexts},
    {"import", 2, 2, importTexts},
};

int run(const Arguments& arguments) {
  const auto* verb = arguments.size() < 2 ? std::end(kVerbs) : std::ranges::find(kVerbs, arguments[1], &Verb::name);
  if (verb == std::end(kVerbs) || arguments.size() - 2 < verb->least || arguments.size() - 2 > verb->most) {
    std::cerr << kUsage;
    return 2;
  }
  const fs::path folder = arguments[0];
  if (!fs::is_directory(folder)) throw Failure(folder.string() + " is no folder");
  Faults faults;
  const Catalog catalog = readCatalog(tablePaths(folder), faults);
  if (faults.empty() && catalog.find(kDevelopmentLanguage, kUnitTable) == nullptr) {
    throw Failure(folder.string() + " has no table of the development language");
  }
  // A check reports all faults; the other verbs need tables that can be taken apart.
  if (faults.empty() && verb->run != check) faults = structureFaults(catalog);
  return faults.empty() ? verb->run(catalog, folder, {arguments.begin() + 2, arguments.end()}) : complain(faults);
}

}  // namespace
}  // namespace kzm::strings

int main(int argc, char** argv) {
  try {
    return kzm::strings::run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << "kzm_strings_desk: " << error.what() << '\n';
    return 1;
  }
}
