#include "cli/locale_name.h"

#include <algorithm>
#include <string>
#include <unicode/uloc.h>

#include "port/ascii.h"
#include "port/locale_form.h"

namespace kzm::cli {
namespace {

bool isTail(std::string_view tail) {
  constexpr std::string_view kSigns = ".@=;_-+/";
  return std::ranges::all_of(
      tail, [&](char c) { return port::isAlphanumeric(c) || kSigns.find(c) != std::string_view::npos; });
}

}  // namespace

LocaleName judgeLocaleName(std::string_view name) {
  const std::string head(name.substr(0, name.find_first_of(".@")));
  const std::string_view tail = name.substr(head.size());
  if (name.size() >= ULOC_FULLNAME_CAPACITY || !isTail(tail)) return LocaleName::malformed;
  if (head == "C" || head == "POSIX") return LocaleName::good;
  if (!port::isLocaleHead(head)) return LocaleName::malformed;
  return *uloc_getISO3Language(head.c_str()) != '\0' ? LocaleName::good : LocaleName::unknownLanguage;
}

}  // namespace kzm::cli
