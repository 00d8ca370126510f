// Catalogs of gettext's PO form, as far as string tables need them: no plurals.
#ifndef TOOLS_STRINGS_PO_H
#define TOOLS_STRINGS_PO_H

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace kzm::strings {

struct Message {
  std::vector<std::string> comments;    // for translators: "#."
  std::vector<std::string> references;  // where it is used: "#:"
  std::string context;                  // msgctxt
  std::string original;                 // msgid
  std::string translation;              // msgstr
  bool isFuzzy = false;
  std::size_t line = 0;
};

/// Writes one message, then an empty line.
void writeMessage(std::ostream& out, const Message& message);

/// Reads all messages, the header (which has no context and an empty original) too; obsolete ones are passed over.
/// Throws Unreadable.
[[nodiscard]] std::vector<Message> readMessages(const std::string& path, std::string_view content);

/// A member of the header, such as "Language"; empty when it is not there.
[[nodiscard]] std::string headerMember(const Message& header, std::string_view name);

}  // namespace kzm::strings

#endif
