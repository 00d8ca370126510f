#include <algorithm>

#include "tools/strings/allowed.h"
#include "tools/strings/exchange.h"
#include "tools/strings/key.h"

namespace kzm::strings {
namespace {

// Where the texts of a family are looked up.
struct Use {
  std::string_view family;
  std::string_view file;
};
constexpr Use kUses[] = {
    {"Network", "bytes/bandwidth.cc"}, {"Activity", "bytes/disk_activity.cc"}, {"Space", "bytes/disk_space.cc"},
    {"Memory", "bytes/memory.cc"},     {"Sensors", "sensors/sensor_table.cc"}, {"Weather", "weather/weather_text.cc"},
    {"Topics", "cli/show/topics.cc"},  {"Columns", "cli/show/topics.cc"},      {"Rows", "cli/show/topics.cc"},
    {"Load", "cli/show/topics.cc"},    {"Battery", "cli/show/topics.cc"},      {"Keys", "cli/monitor/page.cc"},
};

void addLines(std::vector<std::string>& lines, std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

Message headerOf(std::string_view language) {
  std::string tag(language);
  std::ranges::replace(tag, '-', '_');
  Message header;
  header.translation =
      "Project-Id-Version: KZMUtilities\n"
      "Last-Translator: \n"
      "Language: " +
      tag +
      "\n"
      "MIME-Version: 1.0\n"
      "Content-Type: text/plain; charset=UTF-8\n"
      "Content-Transfer-Encoding: 8bit\n";
  return header;
}

/// What is known of a text before it is translated.
Message messageOf(const Entry& english) {
  const Key key = *parseKey(english.key);
  Message message;
  message.context = english.key;
  message.original = english.text;
  addLines(message.comments, english.section);
  addLines(message.comments, english.hint);
  if (const auto cells = widthLimit(key)) {
    const bool hasNumber = partsOf(key.pattern).hasNumber;
    message.comments.push_back("at most " + std::to_string(*cells) + " cells" +
                               (hasNumber ? " beside the number" : ""));
  }
  const auto* use = std::ranges::find(kUses, key.family, &Use::family);
  if (use != std::end(kUses)) message.references.emplace_back(use->file);
  return message;
}

void addTranslation(Message& message, const Table& table, const Entry& entry) {
  const Note note = noteOf(table, entry);
  message.translation = entry.text;
  message.comments.push_back("source: " + note.source + "; reviewer: " + note.reviewer);
}

/// The texts of one table.
void writeTexts(std::ostream& out, const Catalog& catalog, const Table& development, std::string_view language) {
  const std::string& name = development.name;
  const Table* table = language == kDevelopmentLanguage ? nullptr : catalog.find(language, name);
  const Table* parent = table == nullptr ? nullptr : catalog.parent(*table);
  for (const Entry& english : development.entries) {
    Message message = messageOf(english);
    const Entry* own = table == nullptr ? nullptr : table->find(english.key);
    if (own != nullptr) addTranslation(message, *table, *own);
    const Entry* above = parent == nullptr ? nullptr : parent->find(english.key);
    if (above != nullptr) message.comments.push_back("in " + parent->language + ": " + above->text);
    writeMessage(out, message);
  }
}

}  // namespace

void writeCatalog(std::ostream& out, const Catalog& catalog, std::string_view language) {
  writeMessage(out, headerOf(language));
  for (const Table& table : catalog.tables) {
    if (table.language == kDevelopmentLanguage) writeTexts(out, catalog, table, language);
  }
}

}  // namespace kzm::strings
