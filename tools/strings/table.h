// A string table as a translator writes it: lines  "key" = "text";  and comments.
#ifndef TOOLS_STRINGS_TABLE_H
#define TOOLS_STRINGS_TABLE_H

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tools/strings/fault.h"
#include "tools/strings/note.h"

namespace kzm::strings {

/// A part of a table's file.
struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
};

struct Entry {
  std::string key;
  std::string text;
  std::string section;  // the comment that opens the group of rows
  std::string hint;     // the comments right above the row, for translators
  Note note;
  std::size_t line = 0;
  Span row;     // from the key to the semicolon, or to the end of the row's note
  Span quoted;  // the text with its quotes
  bool isInherited = false;
};

struct Table {
  std::string path;
  std::string language;
  std::string name;
  std::string content;  // of the file
  Note note;            // what is true of every row that says nothing else
  std::vector<Entry> entries;

  [[nodiscard]] const Entry* find(std::string_view key) const;
};

/// Reads <language>.lproj/<name>.strings. Throws Unreadable.
[[nodiscard]] Table readTable(const std::filesystem::path& path);

/// The same for what a file of this name would hold.
[[nodiscard]] Table parseTable(const std::filesystem::path& path, std::string content);

/// The text as a table has it, in quotes.
[[nodiscard]] std::string literalOf(std::string_view text);

/// The note that holds for the row.
[[nodiscard]] Note noteOf(const Table& table, const Entry& entry);

}  // namespace kzm::strings

#endif
