// Any bytes as a table of texts and as a translator's file: each is read or refused at a line, and what was read says
// the same when it is written and read again.
#include <sstream>

#include "tests/fuzz/input.h"
#include "tools/strings/catalog.h"
#include "tools/strings/po.h"
#include "tools/strings/rules.h"

namespace kzm::fuzz {
namespace {

void checkTable(std::string content) {
  strings::Catalog catalog;
  try {
    catalog.tables.push_back(strings::parseTable("en.lproj/KZMUtilities.strings", content));
    catalog.tables.push_back(strings::parseTable("de.lproj/KZMUtilities.strings", std::move(content)));
  } catch (const strings::Unreadable&) {
    return;
  }
  for (const strings::Entry& entry : catalog.tables[0].entries) {
    demand(entry.row.begin <= entry.quoted.begin && entry.quoted.end <= entry.row.end, "a text is in its row");
    demand(entry.row.end <= catalog.tables[0].content.size(), "a row is in its file");
  }
  if (strings::structureFaults(catalog).empty()) static_cast<void>(strings::plainFaults(catalog));
}

std::vector<strings::Message> messagesIn(std::string_view content) {
  try {
    return strings::readMessages("de.po", content);
  } catch (const strings::Unreadable&) {
    return {};
  }
}

void checkMessages(std::string_view content) {
  const std::vector<strings::Message> messages = messagesIn(content);
  std::ostringstream written;
  for (const strings::Message& message : messages) strings::writeMessage(written, message);
  const std::vector<strings::Message> again = messagesIn(written.str());
  demand(again.size() == messages.size(), "as many messages when written and read again");
  for (std::size_t i = 0; i < messages.size(); ++i) {
    demand(again[i].context == messages[i].context && again[i].original == messages[i].original &&
               again[i].translation == messages[i].translation && again[i].isFuzzy == messages[i].isFuzzy,
           "the same messages when written and read again");
  }
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  kzm::fuzz::Input input(bytes, size);
  if (input.below(2) == 0) {
    kzm::fuzz::checkTable(std::string(input.rest()));
  } else {
    kzm::fuzz::checkMessages(input.rest());
  }
  return 0;
}
