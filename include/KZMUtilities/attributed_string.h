// Text whose parts carry attributes, such as a bold number before a grey unit.
//
// An AttributedString is an ordinary value: copy it freely, read one object from many threads, change it from one.
#ifndef KZMUTILITIES_ATTRIBUTED_STRING_H
#define KZMUTILITIES_ATTRIBUTED_STRING_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

namespace kzm {

/// UTF-8 text divided into runs, each with a set of text attributes.
///
/// An attribute set is any Value; the library hands it through and never looks inside. Null means no attributes; every
/// other Value counts, an empty Dictionary too. Runs are never empty, and neighbours with equal sets are one run.
class KZM_EXPORT AttributedString {
 public:
  struct Run {
    std::string text;
    Value attributes;
    [[nodiscard]] friend bool operator==(const Run&, const Run&) = default;
  };

  /// Empty text.
  AttributedString() noexcept;
  /// The whole text with one attribute set. Empty text has no run and forgets the set.
  explicit AttributedString(std::string text, Value attributes = nullptr);

  /// The text of all runs.
  [[nodiscard]] std::string text() const;
  /// The runs from first to last.
  [[nodiscard]] const std::vector<Run>& runs() const noexcept { return runs_; }

  /// Adds the runs of the other text at the end.
  void append(const AttributedString& other);

  /// Puts `replacement`, with its own runs, in the place of `length` bytes from `position`; the rest keeps its
  /// attributes. A range that reaches beyond the text is cut, and one that would split a character grows to hold it
  /// whole.
  void replace(std::size_t position, std::size_t length, const AttributedString& replacement);

  /// Replaces the first literal, case-sensitive occurrence of `target`.
  /// Returns false, and changes nothing, when the target is empty or not found.
  bool replaceFirst(std::string_view target, const AttributedString& replacement);

  [[nodiscard]] friend bool operator==(const AttributedString&, const AttributedString&) = default;

 private:
  std::vector<Run> runs_;
};

}  // namespace kzm

#endif
