// What each kind of argument and result is in C.
#ifndef KZM_TOOLS_BINDINGS_KINDS_H
#define KZM_TOOLS_BINDINGS_KINDS_H

#include <string_view>

namespace kzm::bindings {

struct ArgumentKind {
  std::string_view kind;
  std::string_view type;        // in C, up to the name
  std::string_view annotation;  // for introspection
  std::string_view documentation;
  bool isJson;  // a JSON text, for which other languages have objects
};

struct ResultKind {
  std::string_view kind;
  std::string_view type;
  std::string_view annotation;
  std::string_view documentation;
};

/// Each throws std::out_of_range for a kind without a row.
[[nodiscard]] const ArgumentKind& argumentKind(std::string_view kind);
[[nodiscard]] const ResultKind& resultKind(std::string_view kind);

}  // namespace kzm::bindings

#endif
