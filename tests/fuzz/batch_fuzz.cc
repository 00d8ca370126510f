// Any bytes as a line of the batch protocol: answered by one line of JSON, whatever they are.
#include <nlohmann/json.hpp>

#include "cli/call/batch.h"
#include "tests/fuzz/input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using kzm::fuzz::demand;
  kzm::fuzz::Input input(bytes, size);
  while (!input.empty()) {
    const std::string answer = kzm::cli::answerLine(input.textTo('\n'));
    demand(answer.find('\n') == std::string::npos, "an answer is one line");
    const auto json = nlohmann::json::parse(answer, nullptr, false);
    demand(json.is_object() && json.contains("id"), "an answer is an object with an id");
    demand(json.contains("result") != json.contains("error"), "it has either a result or an error");
  }
  return 0;
}
