#include "cli/locale_name.h"

#include <algorithm>
#include <string>
#include <unicode/uloc.h>

#include "port/ascii.h"

namespace kzm::cli {
namespace {

using port::isAlphanumeric;
using port::isLetter;

bool isSeparator(char c) { return c == '_' || c == '-'; }

// A language of two or three letters, then parts of at most eight letters and digits; "ca__VALENCIA" has an empty one.
bool isHead(std::string_view head) {
  const std::size_t language = std::min(head.find_first_of("_-"), head.size());
  if ((language != 2 && language != 3) || !std::ranges::all_of(head.substr(0, language), isLetter)) return false;
  std::size_t length = 0;
  for (const char c : head.substr(language)) {
    length = isSeparator(c) ? 0 : length + 1;
    if (length > 8 || !(isSeparator(c) || isAlphanumeric(c))) return false;
  }
  return !isSeparator(head.back());
}

bool isTail(std::string_view tail) {
  constexpr std::string_view kSigns = ".@=;_-+/";
  return std::ranges::all_of(tail,
                             [&](char c) { return isAlphanumeric(c) || kSigns.find(c) != std::string_view::npos; });
}

}  // namespace

LocaleName judgeLocaleName(std::string_view name) {
  const std::string head(name.substr(0, name.find_first_of(".@")));
  const std::string_view tail = name.substr(head.size());
  if (name.size() >= ULOC_FULLNAME_CAPACITY || !isTail(tail)) return LocaleName::malformed;
  if (head == "C" || head == "POSIX") return LocaleName::good;
  if (!isHead(head)) return LocaleName::malformed;
  return *uloc_getISO3Language(head.c_str()) != '\0' ? LocaleName::good : LocaleName::unknownLanguage;
}

}  // namespace kzm::cli
