// Every exported call, with arguments of any kind and bit pattern: options of known names with values of any type
// among them. The call answers, the same twice, or refuses.
#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>
#include <string>

#include "catalogue/callables.h"
#include "catalogue/errors.h"
#include "tests/fuzz/input.h"

namespace kzm::fuzz {
namespace {

using catalogue::Json;

constexpr std::size_t kMostLevels = 4;

// The protocol's texts are UTF-8: what is not becomes U+FFFD.
std::string textOf(Input& input) {
  const Json text = std::string(input.textTo('\0'));
  return Json::parse(text.dump(-1, ' ', false, Json::error_handler_t::replace)).get<std::string>();
}

Json numberOf(Input& input) {
  const auto number = input.take<double>();
  if (std::isfinite(number)) return number;
  return std::isnan(number) ? "NaN" : number > 0 ? "Infinity" : "-Infinity";
}

Json anyOf(Input& input, std::size_t level);

Json optionsOf(Input& input, std::size_t level) {
  Json options = Json::object();
  for (std::size_t count = input.below(6); count > 0; --count) {
    const std::string name = input.below(8) == 0 ? textOf(input) : std::string(input.any(kzm::internal::kSlottedNames));
    options[name] = anyOf(input, level + 1);
  }
  return options;
}

Json anyOf(Input& input, std::size_t level) {
  switch (input.below(level < kMostLevels ? 8 : 6)) {
    case 0:
      return nullptr;
    case 1:
      return input.take<std::uint8_t>() % 2 == 0;
    case 2:
      return input.take<std::int8_t>();
    case 3:
      return input.take<std::int64_t>();
    case 4:
      return numberOf(input);
    case 5:
      return textOf(input);
    case 6: {
      Json elements = Json::array();
      for (std::size_t count = input.below(4); count > 0; --count) elements.push_back(anyOf(input, level + 1));
      return elements;
    }
    default:
      return optionsOf(input, level);
  }
}

// Mostly what the call wants.
Json argumentOf(Input& input, std::string_view kind) {
  if (input.below(16) == 0) return anyOf(input, 0);
  if (kind == "double") return numberOf(input);
  if (kind == "dictionary") return optionsOf(input, 0);
  if (kind == "string") return textOf(input);
  if (kind == "integer")
    return input.below(2) == 0 ? Json(input.take<std::int8_t>()) : Json(input.take<std::int64_t>());
  return anyOf(input, 0);
}

std::optional<std::string> answer(const catalogue::Callable& callable, const Json& arguments) {
  try {
    return callable.call(arguments).json;
  } catch (const catalogue::InputError&) {
    return std::nullopt;
  }
}

// Two calls at two moments may differ.
bool readsTheClock(std::string_view name) {
  constexpr std::string_view kOfNow[] = {"dateFromComponents:", "timeIntervalFromComponents:", "utcStartForToday"};
  return std::ranges::find(kOfNow, name) != std::end(kOfNow);
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kzm::fuzz;
  Input input(bytes, size);
  while (!input.empty()) {
    const kzm::catalogue::Callable& callable = input.any(kzm::catalogue::callables());
    kzm::catalogue::Json arguments = kzm::catalogue::Json::array();
    for (const std::string_view kind : callable.kinds) arguments.push_back(argumentOf(input, kind));
    const std::optional<std::string> first = answer(callable, arguments);
    demand(first == answer(callable, arguments) || readsTheClock(callable.name), callable.name);
  }
  return 0;
}
