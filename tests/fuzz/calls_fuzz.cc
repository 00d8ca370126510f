// Every exported call, with arguments of any kind and bit pattern: options of known names with values of any type
// among them. The call answers, the same twice, or refuses.
#include <optional>
#include <string>

#include "catalogue/callables.h"
#include "catalogue/errors.h"
#include "tests/fuzz/input.h"
#include "tests/support/any_json.h"
#include "tests/support/sample_calls.h"

namespace kzm::fuzz {
namespace {

std::optional<std::string> answer(const catalogue::Callable& callable, const catalogue::Json& arguments) {
  try {
    return callable.call(arguments).json;
  } catch (const catalogue::InputError&) {
    return std::nullopt;
  }
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kzm::fuzz;
  Input input(bytes, size);
  while (!input.empty()) {
    const kzm::catalogue::Callable& callable = input.any(kzm::catalogue::callables());
    kzm::catalogue::Json arguments = kzm::catalogue::Json::array();
    for (const std::string_view kind : callable.kinds) arguments.push_back(kzm::tests::anyArgument(input, kind));
    const std::optional<std::string> first = answer(callable, arguments);
    demand(first == answer(callable, arguments) || kzm::tests::readsTheClock(callable), callable.name);
  }
  return 0;
}
