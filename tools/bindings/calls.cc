#include <string_view>
#include <vector>

#include "catalogue/callables.h"
#include "catalogue/names.h"
#include "tools/bindings/kinds.h"
#include "tools/bindings/placeholders.h"

namespace kzm::bindings {
namespace {

using catalogue::Callable;
using catalogue::Parameter;

constexpr std::size_t kColumns = 120;

// "(a, b, c)" after the text; where that is too long, each on a line of its own below the first.
std::string withList(const std::string& text, const std::vector<std::string>& elements, std::size_t after) {
  std::string line = text + "(";
  std::string column = line;
  const char* separator = "";
  for (const std::string& element : elements) {
    line += separator + element;
    column += (*separator == '\0' ? "" : ",\n" + std::string(text.size() + 1, ' ')) + element;
    separator = ", ";
  }
  return (line.size() + after < kColumns ? line : column) + ")";
}

// A prototype, but for what ends it: a line of that many bytes more.
std::string prototype(const Callable& callable, const char* none, std::size_t after) {
  std::vector<std::string> parameters;
  for (const auto& [name, kind] : catalogue::parametersOf(callable)) {
    parameters.push_back(std::string(argumentKind(kind).type) + catalogue::snakeCase(name));
  }
  if (parameters.empty() && *none != '\0') parameters.emplace_back(none);
  return withList(std::string(resultKind(callable.result).type) + catalogue::cName(callable.name), parameters, after);
}

std::string annotated(std::string_view annotation, std::string_view documentation) {
  return annotation.empty() ? std::string(documentation) : std::string(annotation) + ": " + std::string(documentation);
}

std::string comment(const Callable& callable) {
  std::string text = "/**\n * " + catalogue::cName(callable.name) + ":\n";
  for (const auto& [name, kind] : catalogue::parametersOf(callable)) {
    const ArgumentKind& row = argumentKind(kind);
    text += " * @" + catalogue::snakeCase(name) + ": " + annotated(row.annotation, row.documentation) + '\n';
  }
  const ResultKind& result = resultKind(callable.result);
  return text + " *\n * " + std::string(callable.documentation) + "\n * In C++: " + catalogue::cppName(callable.name) +
         ".\n *\n * Returns: " + annotated(result.annotation, result.documentation) + "\n */\n";
}

std::string body(const Callable& callable) {
  std::vector<std::string> arguments;
  for (const Parameter& parameter : catalogue::parametersOf(callable)) {
    arguments.push_back(catalogue::snakeCase(parameter.name));
  }
  return prototype(callable, "", 2) + " {\n" +
         withList("  return c::call<" + catalogue::cppName(callable.name) + ">", arguments, 1) + ";\n}\n";
}

// Which arguments are JSON texts, as an array of their positions.
std::string jsonPositions(const Callable& callable) {
  std::string positions;
  const std::vector<Parameter> parameters = catalogue::parametersOf(callable);
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (argumentKind(parameters[i].kind).isJson) positions += (positions.empty() ? "" : ", ") + std::to_string(i);
  }
  return "[" + positions + "]";
}

template <class Part>
std::string joined(const char* separator, const Part& part) {
  std::string text;
  for (const Callable& callable : catalogue::callables()) text += (text.empty() ? "" : separator) + part(callable);
  return text;
}

}  // namespace

std::string declarations() {
  return joined("\n",
                [](const Callable& callable) { return comment(callable) + prototype(callable, "void", 1) + ";\n"; });
}

std::string bodies() { return joined("\n", body); }

std::string introspected() {
  return joined("", [](const Callable& callable) {
    const std::string name = catalogue::cName(callable.name).substr(std::string_view("kzm_").size());
    return "    \"" + name + "\": " + jsonPositions(callable) + ",\n";
  });
}

}  // namespace kzm::bindings
