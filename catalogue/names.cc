#include "catalogue/names.h"

#include "port/ascii.h"

namespace kzm::catalogue {
namespace {

using port::isLower;
using port::isUpper;
using port::lower;
using port::upper;

// A capital begins a word after a small letter, and before one: "utcStart", "UVIndex".
bool beginsWord(std::string_view name, std::size_t i) {
  if (i == 0 || !isUpper(name[i])) return false;
  return !isUpper(name[i - 1]) || (i + 1 < name.size() && isLower(name[i + 1]));
}

}  // namespace

std::string cppName(std::string_view published) {
  std::string name;
  bool isJoint = false;
  for (const char c : published) {
    if (c != ':') name += isJoint ? upper(c) : c;
    isJoint = c == ':';
  }
  return name;
}

std::string cName(std::string_view published) {
  for (const std::string_view prefix : {"KZMUtilities", "KZM"}) {
    if (!published.starts_with(prefix)) continue;
    published.remove_prefix(prefix.size());
    break;
  }
  return "kzm_" + snakeCase(cppName(published));
}

std::string snakeCase(std::string_view name) {
  std::string snake;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (beginsWord(name, i)) snake += '_';
    snake += lower(name[i]);
  }
  return snake;
}

}  // namespace kzm::catalogue
