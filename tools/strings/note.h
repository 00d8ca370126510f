// The comments that say where texts come from and who has read them: "source: CLDR 42; reviewer: none".
#ifndef TOOLS_STRINGS_NOTE_H
#define TOOLS_STRINGS_NOTE_H

#include <optional>
#include <string>
#include <string_view>

namespace kzm::strings {

/// A row's own note has empty members where its table's note holds.
struct Note {
  std::string source;
  std::string reviewer;
  bool operator==(const Note&) const = default;
};

/// What the comment says, given without its marks; nothing when it is a comment of another kind.
[[nodiscard]] std::optional<Note> parseNote(std::string_view comment);

/// The comment that says the note, such as "/* source: own */"; empty when the note says nothing.
[[nodiscard]] std::string noteComment(const Note& note);

}  // namespace kzm::strings

#endif
