// The monitor's screen for a machine that is always the same, as text: screen [--locale ID] ROWS COLUMNS
#include <exception>
#include <iostream>
#include <vector>

#include "cli/monitor/page.h"
#include "cli/numbers.h"
#include "cli/process_options.h"
#include "tests/cli/monitor/example.h"

namespace kzm::tests {
namespace {

int screen(cli::Words words) {
  while (!words.empty() && cli::takeProcessOption(words)) {
  }
  constexpr int kMost = 1000;
  const auto numberAt = [&](std::size_t i) {
    return static_cast<std::size_t>(cli::integerIn(i < words.size() ? words[i] : "", 1, kMost));
  };
  const Example machine = example();
  const cli::Texts texts;
  const cli::Frame frame =
      cli::pageOf({machine.groups, machine.tracks, texts}, {}, {.rows = numberAt(0), .columns = numberAt(1)}).frame;
  for (std::size_t row = 0; row < frame.size().rows; ++row) std::cout << frame.textOf(row) << '\n';
  return std::cout.flush() ? 0 : 1;
}

}  // namespace
}  // namespace kzm::tests

int main(int count, char** arguments) {
  try {
    return kzm::tests::screen(std::vector<std::string_view>(arguments + 1, arguments + count));
  } catch (const std::exception& error) {
    std::cerr << "screen: " << error.what() << '\n';
    return 2;
  }
}
