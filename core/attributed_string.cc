#include <algorithm>
#include <utility>

#include <KZMUtilities/attributed_string.h>

#include "port/ascii.h"

namespace kzm {
namespace {

constexpr std::size_t kUsualParts = 3;  // the number, and what is before and after it

// Whether a character of several bytes goes on at the offset. A byte that only looks like it, after an ASCII character,
// is text of its own.
bool isInCharacter(std::string_view text, std::size_t offset) {
  if (offset == 0 || offset >= text.size()) return false;
  return port::continuesCharacter(text[offset]) && static_cast<unsigned char>(text[offset - 1]) >= 0x80U;
}

// The byte offsets of a range that is inside the text and splits no character.
std::pair<std::size_t, std::size_t> wholeCharacters(std::string_view text, std::size_t position, std::size_t length) {
  std::size_t first = std::min(position, text.size());
  std::size_t last = first + std::min(length, text.size() - first);
  while (isInCharacter(text, first)) --first;
  while (isInCharacter(text, last)) ++last;
  return {first, last};
}

}  // namespace

AttributedString::AttributedString() noexcept = default;

AttributedString::AttributedString(std::string text, Value attributes) : text_(std::move(text)) {
  if (!text_.empty()) parts_.emplace_back(text_.size(), std::move(attributes));
}

[[gnu::flatten]] AttributedString::AttributedString(std::string text, const Value& attributes, std::size_t position,
                                                    std::size_t length, const Value& partAttributes)
    : text_(std::move(text)) {
  const auto [first, last] = wholeCharacters(text_, position, length);
  if (text_.empty()) return;
  parts_.reserve(kUsualParts);
  if (first == last || attributes == partAttributes) {
    parts_.emplace_back(text_.size(), attributes);
    return;
  }
  if (first > 0) parts_.emplace_back(first, attributes);
  parts_.emplace_back(last, partAttributes);
  if (last < text_.size()) parts_.emplace_back(text_.size(), attributes);
}

// Gives the text from the last part on these attributes. Equal neighbors become one, and empty text is none.
void AttributedString::extendTo(std::size_t end, const Value& attributes) {
  if (end == (parts_.empty() ? 0 : parts_.back().end)) return;
  if (!parts_.empty() && parts_.back().attributes == attributes) {
    parts_.back().end = end;
    return;
  }
  if (parts_.empty()) parts_.reserve(kUsualParts);
  parts_.emplace_back(end, attributes);
}

void AttributedString::append(std::string_view text, const Value& attributes) {
  text_ += text;
  extendTo(text_.size(), attributes);
}

// Adds what is between two offsets of the other text.
void AttributedString::appendPart(const AttributedString& from, std::size_t first, std::size_t last) {
  std::size_t start = 0;
  for (const Run& run : from.runs()) {
    const std::size_t end = start + run.text.size();
    const std::size_t cutFirst = std::clamp(first, start, end);
    const std::size_t cutLast = std::clamp(last, start, end);
    append(run.text.substr(cutFirst - start, cutLast - cutFirst), run.attributes);
    start = end;
  }
}

void AttributedString::append(const AttributedString& other) {
  const AttributedString copy = other;  // which may be this very text
  appendPart(copy, 0, copy.text_.size());
}

void AttributedString::replace(std::size_t position, std::size_t length, const AttributedString& replacement) {
  const auto [first, last] = wholeCharacters(text_, position, length);
  AttributedString result;
  result.appendPart(*this, 0, first);
  result.appendPart(replacement, 0, replacement.text_.size());
  result.appendPart(*this, last, text_.size());
  *this = std::move(result);
}

bool AttributedString::replaceFirst(std::string_view target, const AttributedString& replacement) {
  const std::size_t position = target.empty() ? std::string::npos : text_.find(target);
  if (position == std::string::npos) return false;
  replace(position, target.size(), replacement);
  return true;
}

}  // namespace kzm
