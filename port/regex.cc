#include "port/regex.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <unicode/regex.h>
#include <unicode/unistr.h>

#include "port/per_thread.h"

namespace kzm::port {
namespace {

// A search is given up after so many units of engine work. A unit is ten thousand steps of backtracking, and about
// 0.13 ms; so this is a quarter of a second, long enough to read any text we accept and short enough for a display.
constexpr std::int32_t kMostEngineUnits = 2000;

// The engine counts backtracking only. What it does not count, such as the comparisons of a long literal at each
// place of a long text, ends after this time.
constexpr std::chrono::seconds kLongestSearch{1};

class Deadline {
 public:
  explicit Deadline(icu::RegexMatcher& matcher, UErrorCode& status) {
    matcher.setTimeLimit(kMostEngineUnits, status);
    matcher.setMatchCallback(&Deadline::afterSteps, this, status);
    matcher.setFindProgressCallback(&Deadline::atPosition, this, status);
  }

 private:
  [[nodiscard]] bool holds() const { return std::chrono::steady_clock::now() < end_; }

  static UBool U_CALLCONV afterSteps(const void* context, std::int32_t /*steps*/) {
    return static_cast<const Deadline*>(context)->holds() ? 1 : 0;
  }
  // Called for every place where a match is tried; the clock is looked at every sixteenth time.
  static UBool U_CALLCONV atPosition(const void* context, std::int64_t position) {
    return (position & 0xF) != 0 || static_cast<const Deadline*>(context)->holds() ? 1 : 0;
  }

  std::chrono::steady_clock::time_point end_ = std::chrono::steady_clock::now() + kLongestSearch;
};

icu::UnicodeString utf16(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

// A back-reference compares as much text as its group holds, and all that in one step. An escaped backslash before a
// digit is taken for one as well: what it costs is only that long texts are not searched.
bool refersBack(std::string_view pattern) {
  const auto begins = [](char c, char next) { return c == '\\' && ((next >= '1' && next <= '9') || next == 'k'); };
  return std::adjacent_find(pattern.begin(), pattern.end(), begins) != pattern.end();
}

// Compiling costs a hundred times what a short search does, and hosts ask for one pattern again and again. A pattern
// that does not compile is remembered as well.
struct LastPattern {
  std::optional<std::string> text;
  std::unique_ptr<icu::RegexPattern> compiled;
};

const icu::RegexPattern* compiled(std::string_view pattern) {
  LastPattern& last = perThread<LastPattern>();
  if (last.text == pattern) return last.compiled.get();
  UErrorCode status = U_ZERO_ERROR;
  last.compiled.reset(icu::RegexPattern::compile(utf16(pattern), UREGEX_CASE_INSENSITIVE, status));
  last.text = pattern;
  return last.compiled.get();
}

bool isTooLong(std::string_view text, std::string_view pattern) {
  return pattern.size() > kLongestPattern || text.size() > kLongestText ||
         (text.size() > kLongestTextForBackReference && refersBack(pattern));
}

}  // namespace

std::optional<std::string> firstGroup(std::string_view text, std::string_view pattern) {
  if (isTooLong(text, pattern)) return std::nullopt;
  const icu::RegexPattern* expression = compiled(pattern);
  if (expression == nullptr) return std::nullopt;
  UErrorCode status = U_ZERO_ERROR;
  const icu::UnicodeString input = utf16(text);  // The matcher keeps a reference.
  const std::unique_ptr<icu::RegexMatcher> matcher(expression->matcher(input, status));
  if (U_FAILURE(status) || matcher == nullptr || matcher->groupCount() < 1) return std::nullopt;
  const Deadline deadline(*matcher, status);
  if (!matcher->find(status) || U_FAILURE(status) || matcher->start(1, status) < 0) return std::nullopt;
  const icu::UnicodeString group = matcher->group(1, status);
  if (U_FAILURE(status)) return std::nullopt;
  std::string result;
  return group.toUTF8String(result);
}

}  // namespace kzm::port
