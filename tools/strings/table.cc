#include "tools/strings/table.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "tools/strings/utf8.h"

namespace kzm::strings {
namespace {

constexpr std::string_view kSpaces = " \t\r\n";

/// The words of a comment, one space between them, whatever its lines are.
std::string words(std::string_view text) {
  std::string found;
  for (std::size_t begin = text.find_first_not_of(kSpaces); begin != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(kSpaces, begin), text.size());
    found += (found.empty() ? "" : " ") + std::string(text.substr(begin, end - begin));
    begin = text.find_first_not_of(kSpaces, end);
  }
  return found;
}

std::string joined(const std::vector<std::string>& comments) {
  std::string hint;
  for (const std::string& comment : comments) hint += (hint.empty() ? "" : "\n") + comment;
  return hint;
}

/// Reads one table, front to back.
class Reader {
 public:
  explicit Reader(Table& table) : table_(table), text_(table.content) {}

  void read() {
    if (text_.starts_with("\uFEFF")) fail("a byte order mark");
    const std::size_t broken = illFormedAt(text_);
    if (broken != std::string_view::npos) fail("not valid UTF-8", broken);
    for (skipToRow(); position_ < text_.size(); skipToRow()) table_.entries.push_back(entry());
  }

 private:
  // A group of rows begins at an empty line; its first comment is its heading.
  void skipToRow() {
    int lineEnds = 0;
    for (; position_ < text_.size(); ++position_) {
      if (text_.substr(position_).starts_with("/*")) {
        keep(comment());
        lineEnds = 0;
      } else if (kSpaces.find(text_[position_]) == std::string_view::npos) {
        return;
      } else if (text_[position_] == '\n' && ++lineEnds == 2) {
        comments_.clear();
        opensSection_ = true;
      }
    }
  }

  Entry entry() {
    Entry entry;
    openSection();
    entry.section = section_;
    entry.hint = joined(std::exchange(comments_, {}));
    entry.line = lineAt(position_);
    entry.row.begin = position_;
    entry.key = quotedText("a key");
    expect('=');
    skipSpaces(kSpaces);
    entry.quoted.begin = position_;
    entry.text = quotedText("a text");
    entry.quoted.end = position_;
    expect(';');
    entry.row.end = position_;
    readRowNote(entry);
    return entry;
  }

  void openSection() {
    if (!std::exchange(opensSection_, false) || comments_.empty()) return;
    section_ = comments_.front();
    comments_.erase(comments_.begin());
  }

  // A row's note is on its line.
  void readRowNote(Entry& entry) {
    skipSpaces(" \t");
    if (!text_.substr(position_).starts_with("/*")) return;
    const std::string found = comment();
    ++position_;
    if (const auto note = parseNote(found)) {
      entry.note = *note;
      entry.row.end = position_;
    } else {
      keep(found);
    }
  }

  /// Reads a comment and stops at its last character.
  std::string comment() {
    const std::size_t end = text_.find("*/", position_ + 2);
    if (end == std::string_view::npos) fail("the comment has no end");
    const std::string_view content = text_.substr(position_ + 2, end - position_ - 2);
    position_ = end + 1;
    return words(content);
  }

  void keep(const std::string& comment) {
    const auto note = parseNote(comment);
    if (!note) {
      comments_.push_back(comment);
    } else if (table_.entries.empty()) {
      table_.note = *note;
    } else {
      fail("a note on the source or the reviewer goes at the head of the table or on the line of its row");
    }
  }

  std::string quotedText(const std::string& what) {
    if (peek() != '"') fail("expected " + what + " in double quotes");
    ++position_;
    std::string content;
    while (peek() != '"') content += character();
    ++position_;
    return content;
  }

  char character() {
    if (peek() == '\\') {
      ++position_;
      if (peek() != '"' && peek() != '\\') fail("only \\\" and \\\\ are escapes");
    } else if (static_cast<unsigned char>(peek()) < 0x20U) {
      fail(position_ < text_.size() ? "a quoted text ends on its line and holds no control character"
                                    : "the quoted text has no end");
    }
    return text_[position_++];
  }

  void expect(char wanted) {
    skipSpaces(kSpaces);
    if (peek() != wanted) fail(std::string("expected ") + wanted);
    ++position_;
  }

  void skipSpaces(std::string_view spaces) {
    position_ = std::min(text_.find_first_not_of(spaces, position_), text_.size());
  }

  [[nodiscard]] char peek() const { return position_ < text_.size() ? text_[position_] : '\0'; }

  // Positions only grow, so each part of the text is counted once.
  std::size_t lineAt(std::size_t position) {
    line_ += static_cast<std::size_t>(std::ranges::count(text_.substr(counted_, position - counted_), '\n'));
    counted_ = position;
    return line_;
  }

  [[noreturn]] void fail(const std::string& what) { fail(what, position_); }
  [[noreturn]] void fail(const std::string& what, std::size_t position) {
    throw Unreadable({table_.path, lineAt(position), what});
  }

  Table& table_;
  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t counted_ = 0;
  std::size_t line_ = 1;
  std::vector<std::string> comments_;
  std::string section_;
  bool opensSection_ = false;
};

}  // namespace

const Entry* Table::find(std::string_view key) const {
  const auto found = std::ranges::find(entries, key, &Entry::key);
  return found == entries.end() ? nullptr : &*found;
}

Table parseTable(const std::filesystem::path& path, std::string content) {
  const std::filesystem::path folder = path.parent_path().filename();
  if (folder.extension() != ".lproj" || path.extension() != ".strings") {
    throw Unreadable({path.string(), 0, "not of the form <language>.lproj/<name>.strings"});
  }
  Table table{path.string(), folder.stem().string(), path.stem().string(), std::move(content), {}, {}};
  Reader(table).read();
  return table;
}

Table readTable(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string content{std::istreambuf_iterator<char>(file), {}};
  if (!file) throw Unreadable({path.string(), 0, "cannot be read"});
  return parseTable(path, std::move(content));
}

std::string literalOf(std::string_view text) {
  std::string literal = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') literal += '\\';
    literal += c;
  }
  return literal + '"';
}

Note noteOf(const Table& table, const Entry& entry) {
  return {entry.note.source.empty() ? table.note.source : entry.note.source,
          entry.note.reviewer.empty() ? table.note.reviewer : entry.note.reviewer};
}

}  // namespace kzm::strings
