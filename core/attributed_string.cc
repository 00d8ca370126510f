#include <algorithm>
#include <utility>

#include <KZMUtilities/attributed_string.h>

namespace kzm {
namespace {

bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// The byte offsets of a range that lies inside the text and splits no character.
std::pair<std::size_t, std::size_t> wholeCharacters(std::string_view text, std::size_t position, std::size_t length) {
  std::size_t first = std::min(position, text.size());
  std::size_t last = first + std::min(length, text.size() - first);
  while (first > 0 && first < text.size() && continuesCharacter(text[first])) --first;
  while (last < text.size() && continuesCharacter(text[last])) ++last;
  return {first, last};
}

// Adds a run; equal neighbours become one, and empty text is none.
void appendRun(std::vector<AttributedString::Run>& runs, std::string_view text, const Value& attributes) {
  if (text.empty()) return;
  if (!runs.empty() && runs.back().attributes == attributes) {
    runs.back().text += text;
  } else {
    runs.push_back({std::string(text), attributes});
  }
}

}  // namespace

AttributedString::AttributedString() noexcept = default;

AttributedString::AttributedString(std::string text, Value attributes) {
  if (!text.empty()) runs_.push_back({std::move(text), std::move(attributes)});
}

std::string AttributedString::text() const {
  std::string all;
  for (const Run& run : runs_) all += run.text;
  return all;
}

void AttributedString::append(const AttributedString& other) {
  for (const Run& run : std::vector<Run>(other.runs_)) appendRun(runs_, run.text, run.attributes);
}

void AttributedString::replace(std::size_t position, std::size_t length, const AttributedString& replacement) {
  const auto [first, last] = wholeCharacters(text(), position, length);
  AttributedString result;
  AttributedString tail;
  std::size_t start = 0;
  for (const Run& run : runs_) {
    const std::string_view text = run.text;
    const auto within = [&](std::size_t offset) { return std::clamp(offset, start, start + text.size()) - start; };
    appendRun(result.runs_, text.substr(0, within(first)), run.attributes);
    appendRun(tail.runs_, text.substr(within(last)), run.attributes);
    start += text.size();
  }
  result.append(replacement);
  result.append(tail);
  *this = std::move(result);
}

bool AttributedString::replaceFirst(std::string_view target, const AttributedString& replacement) {
  const std::size_t position = target.empty() ? std::string::npos : text().find(target);
  if (position == std::string::npos) return false;
  replace(position, target.size(), replacement);
  return true;
}

}  // namespace kzm
