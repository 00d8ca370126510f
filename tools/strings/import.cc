#include <algorithm>
#include <map>
#include <optional>

#include "tools/strings/exchange.h"

namespace kzm::strings {
namespace {

/// A change of a table's file.
struct Edit {
  Span span;
  std::string content;
};

std::string rowOf(const Entry& entry) {
  const std::string comment = noteComment(entry.note);
  return literalOf(entry.key) + " = " + literalOf(entry.text) + ';' + (comment.empty() ? "" : ' ' + comment);
}

std::string edited(std::string content, std::vector<Edit> edits) {
  // From the end, so that positions stay true; of edits at one place, the last one first.
  std::ranges::stable_sort(edits, {}, [](const Edit& edit) { return edit.span.begin; });
  for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
    content.replace(edit->span.begin, edit->span.end - edit->span.begin, edit->content);
  }
  return content;
}

/// The head and the headings of a table that is not there yet.
std::string newTable(std::string_view language, const std::string& source) {
  return "/* " + std::string(language) + ". */\n" + noteComment({source, "none"}) + '\n';
}

class Importer {
 public:
  Importer(const Catalog& catalog, std::string_view language, std::string_view name, const std::string& path,
           const std::vector<Message>& messages)
      : catalog_(catalog),
        development_(*catalog.find(kDevelopmentLanguage, name)),
        path_(path),
        isLayer_(withoutRegion(language)) {
    for (const Message& message : messages) keep(message, language);
    const Table* table = catalog.find(language, name);
    isNew_ = table == nullptr;
    const std::string file = std::string(language) + ".lproj/" + std::string(name) + ".strings";
    table_ = isNew_ ? parseTable(file, newTable(language, source_)) : *table;
    if (isLayer_) parent_ = parentOf(catalog, language, name);
  }

  Import run() {
    for (const Entry& english : development_.entries) {
      const auto message = messages_.find(english.key);
      translate(english, message == messages_.end() ? nullptr : message->second);
    }
    if (!import_.changed.empty() && translator_.empty()) fault(1, "the header does not say Last-Translator");
    import_.content = edited(table_.content, edits_);
    return import_;
  }

 private:
  static std::optional<Table> parentOf(const Catalog& catalog, std::string_view language, std::string_view name) {
    const Table* parent = catalog.find(*withoutRegion(language), name);
    if (parent == nullptr) return std::nullopt;
    return completed(catalog, *parent);
  }

  void keep(const Message& message, std::string_view language) {
    if (message.context.empty() && message.original.empty()) return keepHeader(message, language);
    const Entry* english = development_.find(message.context);
    if (english == nullptr && isInAnotherTable(message.context)) return;
    if (english == nullptr) return fault(message.line, "unknown key \"" + message.context + '"');
    if (english->text != message.original) {
      return fault(message.line, "\"" + message.original + "\" is not the English text of \"" + message.context + '"');
    }
    if (!messages_.emplace(message.context, &message).second) {
      fault(message.line, '"' + message.context + "\" is there twice");
    }
  }

  [[nodiscard]] bool isInAnotherTable(const std::string& key) const {
    return std::ranges::any_of(catalog_.tables, [&](const Table& table) {
      return table.language == kDevelopmentLanguage && table.find(key) != nullptr;
    });
  }

  void keepHeader(const Message& header, std::string_view language) {
    std::string tag = headerMember(header, "Language");
    std::ranges::replace(tag, '_', '-');
    if (!tag.empty() && tag != language) fault(header.line, "this is a catalog of the language " + tag);
    translator_ = headerMember(header, "Last-Translator");
    translator_ = translator_.substr(0, translator_.find(" <"));
    source_ = "translator " + translator_;
  }

  void translate(const Entry& english, const Message* message) {
    const Entry* own = table_.find(english.key);
    if (message == nullptr || message->isFuzzy) return advance(own);
    const std::string& text = message->translation;
    const bool isParents = parent_ && (text.empty() || parent_->find(english.key)->text == text);
    if (own != nullptr && isParents) {
      remove(*own);
    } else if (own != nullptr && !text.empty() && own->text != text) {
      replace(*own, text);
    } else if (own == nullptr && !isParents && !text.empty()) {
      insert(english, text);
    }
    advance(own);
  }

  // Rows that are new go after the last row that was met.
  void advance(const Entry* own) {
    if (own != nullptr) place_ = endOfLine(own->row.end);
  }

  [[nodiscard]] std::size_t endOfLine(std::size_t position) const {
    return std::min(table_.content.find('\n', position), table_.content.size() - 1) + 1;
  }

  void remove(const Entry& own) {
    edits_.push_back({{own.row.begin, endOfLine(own.row.end)}, ""});
    import_.changed.push_back(own.key);
  }

  void replace(const Entry& own, const std::string& text) {
    Entry entry = own;
    entry.text = text;
    entry.note = {source_ == table_.note.source ? "" : source_, ""};
    edits_.push_back({own.row, rowOf(entry)});
    import_.changed.push_back(own.key);
  }

  void insert(const Entry& english, const std::string& text) {
    Entry entry;
    entry.key = english.key;
    entry.text = text;
    if (source_ != table_.note.source) entry.note.source = source_;
    const std::size_t place =
        place_.value_or(table_.entries.empty() ? table_.content.size() : table_.entries.front().row.begin);
    edits_.push_back({{place, place}, headingOf(english) + rowOf(entry) + '\n'});
    import_.changed.push_back(english.key);
  }

  /// In a new table: the heading of the section that begins, without what only English has to say of it.
  std::string headingOf(const Entry& english) {
    if (!isNew_) return {};
    if (isLayer_) return edits_.empty() ? "\n" : "";
    if (english.section == section_) return {};
    section_ = english.section;
    return "\n/* " + section_.substr(0, section_.find_first_of(":.")) + " */\n";
  }

  void fault(std::size_t line, const std::string& what) { import_.faults.push_back({path_, line, what}); }

  const Catalog& catalog_;
  const Table& development_;
  const std::string& path_;
  bool isLayer_;
  bool isNew_ = false;
  Table table_;
  std::optional<Table> parent_;
  std::string translator_;
  std::string source_;
  std::string section_;
  std::map<std::string_view, const Message*> messages_;
  std::optional<std::size_t> place_;
  std::vector<Edit> edits_;
  Import import_;
};

}  // namespace

Import importCatalog(const Catalog& catalog, std::string_view language, std::string_view name, const std::string& path,
                     const std::vector<Message>& messages) {
  return Importer(catalog, language, name, path, messages).run();
}

}  // namespace kzm::strings
