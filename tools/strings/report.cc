#include "tools/strings/report.h"

#include <algorithm>
#include <iomanip>
#include <map>
#include <string>

#include "tools/strings/key.h"
#include "tools/strings/open_data.h"

namespace kzm::strings {
namespace {

constexpr std::string_view kNobody = "none";
constexpr int kLanguageWidth = 12;
constexpr int kTableWidth = 12;
constexpr int kCountWidth = 12;

struct Counts {
  std::size_t english = 0;
  std::size_t reviewed = 0;
  std::size_t differing = 0;
  std::map<std::string, std::size_t> sources;
};

Counts countsOf(const Table& table) {
  const OpenData data(table.language);
  Counts counts;
  for (const Entry& entry : table.entries) {
    const Note note = noteOf(table, entry);
    if (entry.text == parseKey(entry.key)->pattern) ++counts.english;
    if (note.reviewer != kNobody) ++counts.reviewed;
    if (data.agrees(entry) == false) ++counts.differing;
    ++counts.sources[note.source];
  }
  return counts;
}

std::string describe(const std::map<std::string, std::size_t>& sources) {
  std::string text;
  for (const auto& [source, count] : sources) {
    text += (text.empty() ? "" : ", ") + source + ' ' + std::to_string(count);
  }
  return text;
}

}  // namespace

void reportAll(std::ostream& out, const Catalog& catalog) {
  const auto column = [&](const auto& content) -> std::ostream& {
    return out << std::right << std::setw(kCountWidth) << content;
  };
  out << std::left << std::setw(kLanguageWidth) << "language" << std::setw(kTableWidth) << "table";
  for (const char* heading : {"translated", "English", "reviewed", "differing"}) column(heading);
  out << "  sources\n";
  for (const Table& table : catalog.tables) {
    const Counts counts = countsOf(table);
    out << std::left << std::setw(kLanguageWidth) << table.language << std::setw(kTableWidth) << table.name;
    for (const std::size_t count : {table.entries.size(), counts.english, counts.reviewed, counts.differing}) {
      column(count);
    }
    out << "  " << describe(counts.sources) << '\n';
  }
}

void reportTexts(std::ostream& out, const Table& table) {
  const OpenData data(table.language);
  for (const Entry& entry : table.entries) {
    const Note note = noteOf(table, entry);
    out << table.path << ':' << entry.line << ": " << literalOf(entry.key) << " = " << literalOf(entry.text)
        << "  source: " << note.source << "; reviewer: " << note.reviewer
        << (data.agrees(entry) == false ? "; differs from Unicode's data" : "") << '\n';
  }
}

}  // namespace kzm::strings
