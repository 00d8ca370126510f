// What a family asks the localization library for. A test program that brings its own localization call writes it down.
#ifndef KZM_TESTS_SUPPORT_LOOKUP_H
#define KZM_TESTS_SUPPORT_LOOKUP_H

#include <optional>
#include <string>
#include <string_view>

#include <KZMLocalization/KZMLocalization.h>

namespace kzm::tests {

struct Lookup {
  std::string key;
  std::string table;
  const ResourceBundle* bundle;
  std::optional<std::string> comment;

  Lookup(std::string_view itsKey, std::string_view itsTable, const ResourceBundle* itsBundle, const char* itsComment)
      : key(itsKey), table(itsTable), bundle(itsBundle) {
    if (itsComment != nullptr) comment = itsComment;
  }
  friend bool operator==(const Lookup&, const Lookup&) = default;
};

}  // namespace kzm::tests

#endif
