#include "port/regex.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <unicode/regex.h>
#include <unicode/unistr.h>
#include <utility>

#include "port/clocks.h"
#include "port/memory_watch.h"
#include "port/per_thread.h"
#include "port/regex_pattern.h"

namespace kzm::port {
namespace {

// A search may take this many units of engine work, and one more for each further piece of text. A unit is ten thousand
// steps of backtracking, and about 0.13 ms. Searches that pass a text once take up to seven steps a character.
constexpr std::int32_t kEngineUnits = 2000;
constexpr std::size_t kBytesPerEngineUnit = 1250;

// The engine counts backtracking only. What it does not count, such as the comparisons of a long literal at each
// place of a long text, ends after this time, which is well above what the counted work takes.
constexpr std::int64_t kLongestSearchNanoseconds = 1'000'000'000;
constexpr std::int64_t kSearchNanosecondsPerByte = 500;

// What all sets of a pattern may take to compile.
constexpr double kLongestSetMilliseconds = 250;

// The engine's own count is in 32 bits, of which UTF-16 takes up to one for each byte.
static_assert(kLongestText < std::numeric_limits<std::int32_t>::max());

class Deadline {
 public:
  Deadline(icu::RegexMatcher& matcher, std::size_t bytes, UErrorCode& status)
      : end_(coarseNanoseconds() + kLongestSearchNanoseconds +
             static_cast<std::int64_t>(bytes) * kSearchNanosecondsPerByte) {
    matcher.setTimeLimit(kEngineUnits + static_cast<std::int32_t>(bytes / kBytesPerEngineUnit), status);
    matcher.setMatchCallback(&Deadline::afterSteps, this, status);
    matcher.setFindProgressCallback(&Deadline::atPosition, this, status);
  }

 private:
  // Asked at every place where a match is tried.
  [[nodiscard]] UBool holds() const { return coarseNanoseconds() < end_ ? 1 : 0; }

  static UBool U_CALLCONV afterSteps(const void* context, std::int32_t /*steps*/) {
    return static_cast<const Deadline*>(context)->holds();
  }
  static UBool U_CALLCONV atPosition(const void* context, std::int64_t /*position*/) {
    return static_cast<const Deadline*>(context)->holds();
  }

  std::int64_t end_;
};

icu::UnicodeString utf16(std::string_view text) {
  const MemoryWatch memory;
  icu::UnicodeString result = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
  memory.demand();
  return result;
}

using Program = std::unique_ptr<icu::RegexPattern>;

Program compile(std::string_view pattern) {
  const icu::UnicodeString text = utf16(pattern);
  const MemoryWatch memory;
  UErrorCode status = U_ZERO_ERROR;
  Program program(icu::RegexPattern::compile(text, UREGEX_CASE_INSENSITIVE, status));
  memory.demand(status);
  return program;
}

// Compiling costs a hundred times what a short search does, and hosts ask for one pattern again and again. A pattern
// that does not compile is remembered as well.
struct LastPattern {
  std::optional<std::string> text;
  Program program;
};

// Both parts are there before either takes its place: a failed allocation leaves the pair as it was.
const icu::RegexPattern* compiled(std::string_view pattern) {
  LastPattern& last = perThread<LastPattern>();
  if (last.text == pattern) return last.program.get();
  LastPattern made{std::string(pattern), compile(pattern)};
  last = std::move(made);
  return last.program.get();
}

bool isTooLong(std::string_view text, std::string_view pattern) {
  return text.size() > kLongestText || pattern.size() > kLongestPattern ||
         (text.size() > kLongestTextForBackReference && workOf(pattern).refersBack) ||
         (pattern.size() > kAlwaysCompiled && workOf(pattern).setMilliseconds > kLongestSetMilliseconds);
}

// The matcher keeps a reference to the text.
std::optional<std::string> search(const icu::RegexPattern& pattern, const icu::UnicodeString& text, std::size_t bytes) {
  const MemoryWatch memory;
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::RegexMatcher> matcher(pattern.matcher(text, status));
  memory.demand(status);
  if (U_FAILURE(status) || matcher->groupCount() < 1) return std::nullopt;
  const Deadline deadline(*matcher, bytes, status);
  const bool found = matcher->find(status) != 0;
  memory.demand(status);
  if (!found || U_FAILURE(status) || matcher->start(1, status) < 0) return std::nullopt;
  std::string result;
  matcher->group(1, status).toUTF8String(result);
  memory.demand(status);
  return result;
}

}  // namespace

std::optional<std::string> firstGroup(std::string_view text, std::string_view pattern) {
  if (isTooLong(text, pattern)) return std::nullopt;
  const icu::RegexPattern* expression = compiled(pattern);
  return expression != nullptr ? search(*expression, utf16(text), text.size()) : std::nullopt;
}

}  // namespace kzm::port
