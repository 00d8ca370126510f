#include "tools/strings/note.h"

namespace kzm::strings {
namespace {

struct Member {
  std::string_view label;
  std::string Note::*value;
};
constexpr Member kMembers[] = {
    {"source: ", &Note::source},
    {"reviewer: ", &Note::reviewer},
};

constexpr std::string_view kSeparator = "; ";

bool readMember(std::string_view part, Note& note) {
  for (const Member& member : kMembers) {
    if (!part.starts_with(member.label)) continue;
    note.*member.value = part.substr(member.label.size());
    return true;
  }
  return false;
}

}  // namespace

std::optional<Note> parseNote(std::string_view comment) {
  Note note;
  while (true) {
    const std::size_t end = comment.find(kSeparator);
    if (!readMember(comment.substr(0, end), note)) return std::nullopt;
    if (end == std::string_view::npos) return note;
    comment.remove_prefix(end + kSeparator.size());
  }
}

std::string noteComment(const Note& note) {
  std::string comment;
  for (const Member& member : kMembers) {
    if ((note.*member.value).empty()) continue;
    comment += comment.empty() ? "/* " : kSeparator;
    comment += std::string(member.label) + note.*member.value;
  }
  return comment.empty() ? comment : comment + " */";
}

}  // namespace kzm::strings
