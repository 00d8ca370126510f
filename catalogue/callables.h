// The table of what can be called by name.
#ifndef KZM_CATALOGUE_CALLABLES_H
#define KZM_CATALOGUE_CALLABLES_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/marshal.h"

namespace kzm::catalogue {

/// One exported function or operation.
struct Callable {
  std::string_view name;           // the function's name, or the operation's selector
  std::string_view parameters;     // their names, in order, separated by spaces
  std::string_view documentation;  // one line
  Result (*call)(const Json& arguments);
  std::span<const std::string_view> kinds;
  std::string_view result;  // its kind
};

/// A parameter's name and kind.
struct Parameter {
  std::string_view name;
  std::string_view kind;
};

/// Every callable, in the order of the library's families.
[[nodiscard]] std::span<const Callable> callables();

/// The callable of that name which takes that many arguments. Unknown names and wrong counts are an InputError.
[[nodiscard]] const Callable& callableNamed(std::string_view name, std::size_t arguments);

[[nodiscard]] std::vector<Parameter> parametersOf(const Callable& callable);

/// The callable as `list` shows it: its name, then "parameter:kind" for each parameter.
[[nodiscard]] std::string described(const Callable& callable);

/// All that is known of the callable, as one line of JSON.
[[nodiscard]] std::string describedInJson(const Callable& callable);

}  // namespace kzm::catalogue

#endif
