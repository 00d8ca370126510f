#include "tools/strings/po.h"

#include <algorithm>
#include <string_view>

#include "tools/strings/fault.h"
#include "tools/strings/utf8.h"

namespace kzm::strings {
namespace {

struct Escape {
  char character;
  char letter;
};
constexpr Escape kEscapes[] = {{'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'"', '"'}, {'\\', '\\'}};

std::string literal(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    const auto* escape = std::ranges::find(kEscapes, c, &Escape::character);
    if (escape == std::end(kEscapes)) {
      quoted += c;
    } else {
      quoted += {'\\', escape->letter};
    }
  }
  return quoted + '"';
}

/// A text of several lines begins on a line of its own, as gettext's tools write it.
std::string literals(std::string_view text) {
  if (text.find('\n') == std::string_view::npos) return literal(text);
  std::string lines = literal("");
  while (!text.empty()) {
    const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
    lines += '\n' + literal(text.substr(0, size));
    text.remove_prefix(size);
  }
  return lines;
}

/// Reads messages line by line.
class Reader {
 public:
  Reader(const std::string& path, std::string_view content) : path_(path), rest_(content) {}

  std::vector<Message> messages() {
    while (!rest_.empty()) readLine(takeLine());
    endMessage();
    return messages_;
  }

 private:
  struct Keyword {
    std::string_view word;
    std::string Message::*member;
  };
  static constexpr Keyword kKeywords[] = {
      {"msgctxt ", &Message::context}, {"msgid ", &Message::original}, {"msgstr ", &Message::translation}};

  std::string_view takeLine() {
    ++line_;
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
  }

  void readLine(std::string_view line) {
    if (line.starts_with('#')) return readComment(line);
    if (line.starts_with('"')) return append(line);
    const auto* keyword =
        std::ranges::find_if(kKeywords, [&](const Keyword& row) { return line.starts_with(row.word); });
    if (keyword != std::end(kKeywords)) {
      open(keyword->member);
      append(line.substr(keyword->word.size()));
    } else if (line.find_first_not_of(" \t") != std::string_view::npos) {
      fail("expected msgctxt, msgid, msgstr or a comment");
    }
  }

  // A comment belongs to the message that follows.
  void readComment(std::string_view line) {
    endMessage();
    if (line.starts_with("#,") && line.find("fuzzy") != std::string_view::npos) current_.isFuzzy = true;
  }

  void open(std::string Message::*member) {
    if (member != &Message::translation && hasTranslation_) endMessage();
    if (member == &Message::original) {
      current_.line = line_;
      hasOriginal_ = true;
    }
    if (member == &Message::translation) {
      if (!hasOriginal_ || hasTranslation_) fail("a msgstr without its msgid");
      hasTranslation_ = true;
    }
    member_ = member;
  }

  void append(std::string_view line) {
    if (member_ == nullptr) fail("a text without msgctxt, msgid or msgstr");
    while (line.ends_with(' ')) line.remove_suffix(1);
    if (line.size() < 2 || !line.starts_with('"') || !line.ends_with('"')) fail("expected a text in double quotes");
    line = line.substr(1, line.size() - 2);
    while (!line.empty()) current_.*member_ += takeCharacter(line);
  }

  char takeCharacter(std::string_view& line) {
    char c = line.front();
    line.remove_prefix(1);
    if (c == '"') fail("a double quote within a text");
    if (c != '\\') return c;
    const char letter = line.empty() ? '\0' : line.front();
    const auto* escape = std::ranges::find(kEscapes, letter, &Escape::letter);
    if (escape == std::end(kEscapes)) fail("an escape that is none of \\n \\t \\r \\\" \\\\");
    line.remove_prefix(1);
    return escape->character;
  }

  void endMessage() {
    if (!hasOriginal_) return;
    if (!hasTranslation_) fail("a msgid without its msgstr");
    messages_.push_back(std::move(current_));
    current_ = {};
    member_ = nullptr;
    hasOriginal_ = hasTranslation_ = false;
  }

  [[noreturn]] void fail(const std::string& what) const { throw Unreadable({path_, line_, what}); }

  const std::string& path_;
  std::string_view rest_;
  std::size_t line_ = 0;
  Message current_;
  std::string Message::*member_ = nullptr;
  bool hasOriginal_ = false;
  bool hasTranslation_ = false;
  std::vector<Message> messages_;
};

}  // namespace

void writeMessage(std::ostream& out, const Message& message) {
  for (const std::string& comment : message.comments) out << "#. " << comment << '\n';
  for (const std::string& reference : message.references) out << "#: " << reference << '\n';
  if (message.isFuzzy) out << "#, fuzzy\n";
  if (!message.context.empty()) out << "msgctxt " << literal(message.context) << '\n';
  out << "msgid " << literal(message.original) << "\nmsgstr " << literals(message.translation) << "\n\n";
}

std::vector<Message> readMessages(const std::string& path, std::string_view content) {
  if (content.starts_with("\uFEFF")) content.remove_prefix(3);
  const std::size_t broken = illFormedAt(content);
  if (broken != std::string_view::npos) {
    const auto line = std::ranges::count(content.substr(0, broken), '\n') + 1;
    throw Unreadable({path, static_cast<std::size_t>(line), "not valid UTF-8"});
  }
  return Reader(path, content).messages();
}

std::string headerMember(const Message& header, std::string_view name) {
  const std::string label = std::string(name) + ": ";
  std::string_view rest = header.translation;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    if (rest.starts_with(label)) return std::string(rest.substr(label.size(), end - label.size()));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return {};
}

}  // namespace kzm::strings
