// Text whose parts carry attributes, such as a bold number before a gray unit.
//
// An AttributedString is an ordinary value: copy it freely, read one object from many threads, change it from one.
#ifndef KZMUTILITIES_ATTRIBUTED_STRING_H
#define KZMUTILITIES_ATTRIBUTED_STRING_H

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

namespace kzm {

/// UTF-8 text divided into runs, each with a set of text attributes.
///
/// An attribute set is any Value; the library hands it through and never looks inside. Null means no attributes; every
/// other Value counts, an empty Dictionary too. Runs are never empty, and neighbors with equal sets are one run.
class KZM_EXPORT AttributedString {
 public:
  /// A part of the text with its attributes. It refers to the AttributedString, and is good as long as that is
  /// unchanged.
  struct Run {
    std::string_view text;
    const Value& attributes;
  };
  class Runs;

  /// Empty text.
  AttributedString() noexcept;
  /// The whole text with one attribute set. Empty text has no run and forgets the set.
  explicit AttributedString(std::string text, Value attributes = nullptr);
  /// The text with one attribute set, but for `length` bytes from `position`, which have the set of the part. The range
  /// is cut and grows as that of `replace`.
  AttributedString(std::string text, const Value& attributes, std::size_t position, std::size_t length,
                   const Value& partAttributes);

  /// The text of all runs.
  [[nodiscard]] const std::string& text() const noexcept { return text_; }
  /// The runs from first to last: `for (const auto& run : text.runs())`. Good as long as the text is unchanged.
  [[nodiscard]] inline Runs runs() const noexcept;

  /// Adds the runs of the other text at the end.
  void append(const AttributedString& other);
  /// Adds text with one attribute set at the end.
  void append(std::string_view text, const Value& attributes);

  /// Puts `replacement`, with its own runs, in the place of `length` bytes from `position`; the rest keeps its
  /// attributes. A range that reaches beyond the text is cut, and one that would split a character grows to hold it
  /// whole.
  void replace(std::size_t position, std::size_t length, const AttributedString& replacement);

  /// Replaces the first literal, case-sensitive occurrence of `target`.
  /// Returns false, and changes nothing, when the target is empty or not found.
  ///
  /// Example:
  ///   AttributedString text("%@ MB", "gray");
  ///   text.replaceFirst("%@", AttributedString("3", "bold"))  // true
  ///   text.text()                // "3 MB"
  ///   text.runs()[0].attributes  // "bold"
  bool replaceFirst(std::string_view target, const AttributedString& replacement);

  /// Equal texts, divided in the same way with equal attributes.
  [[nodiscard]] friend bool operator==(const AttributedString&, const AttributedString&) = default;

 private:
  struct Part {
    template <class V>
    Part(std::size_t e, V&& a) : end(e), attributes(std::forward<V>(a)) {}
    std::size_t end;  // where the next one begins
    Value attributes;
    [[nodiscard]] friend bool operator==(const Part&, const Part&) = default;
  };

  void extendTo(std::size_t end, const Value& attributes);
  void appendPart(const AttributedString& from, std::size_t first, std::size_t last);

  std::string text_;
  std::vector<Part> parts_;
};

/// The runs of an AttributedString, as a range.
class AttributedString::Runs {
 public:
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Run;
    using difference_type = std::ptrdiff_t;
    using reference = Run;

    Iterator() = default;
    [[nodiscard]] Run operator*() const { return (*runs_)[index_]; }
    Iterator& operator++() {
      ++index_;
      return *this;
    }
    Iterator operator++(int) {
      const Iterator before = *this;
      ++index_;
      return before;
    }
    [[nodiscard]] bool operator==(const Iterator& other) const { return index_ == other.index_; }

   private:
    friend class Runs;
    Iterator(const Runs& runs, std::size_t index) : runs_(&runs), index_(index) {}
    const Runs* runs_ = nullptr;
    std::size_t index_ = 0;
  };

  [[nodiscard]] std::size_t size() const noexcept { return text_->parts_.size(); }
  [[nodiscard]] bool empty() const noexcept { return text_->parts_.empty(); }
  [[nodiscard]] Run operator[](std::size_t index) const {
    const std::size_t start = index == 0 ? 0 : text_->parts_[index - 1].end;
    const Part& part = text_->parts_[index];
    return {std::string_view(text_->text_).substr(start, part.end - start), part.attributes};
  }
  [[nodiscard]] Iterator begin() const { return {*this, 0}; }
  [[nodiscard]] Iterator end() const { return {*this, size()}; }

 private:
  friend class AttributedString;
  explicit Runs(const AttributedString& text) : text_(&text) {}
  const AttributedString* text_;
};

inline AttributedString::Runs AttributedString::runs() const noexcept { return Runs(*this); }

}  // namespace kzm

#endif
