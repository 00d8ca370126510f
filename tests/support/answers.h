// What each of the sample calls answers: link sample_calls.cc into the test program.
#ifndef KZM_TESTS_SUPPORT_ANSWERS_H
#define KZM_TESTS_SUPPORT_ANSWERS_H

#include <sstream>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/process.h>

#include "catalogue/callables.h"
#include "tests/support/processes.h"
#include "tests/support/sample_calls.h"

namespace kzm::tests {

/// One for each call of the catalogue, in its order. Each is a line.
using Answers = std::vector<std::string>;

/// What the clock says is left out: the call is made, and its line is empty.
inline std::string answerOf(const catalogue::Callable& callable) {
  std::string answer = callable.call(sampleArguments(callable)).json;
  return readsTheClock(callable) ? std::string() : answer;
}

/// What a single thread gets under these settings, in a process of its own. This one stays cold.
inline Answers answersOfAnotherProcess(const Dictionary& settings) {
  const Pipe pipe;
  const int end = endOf([&] {
    KZMSettingsUseObjects(settings);
    std::string lines;
    for (const catalogue::Callable& callable : catalogue::callables()) lines += answerOf(callable) + '\n';
    const bool isWritten = ::write(pipe.writingEnd().descriptor(), lines.data(), lines.size()) == std::ssize(lines);
    return isWritten ? 0 : 1;
  });
  if (end != 0) throw std::runtime_error("no answers from the other process");
  pipe.writingEnd().close();
  std::istringstream lines(readAll(pipe.readingEnd().descriptor()));
  Answers answers;
  for (std::string line; std::getline(lines, line);) answers.push_back(std::move(line));
  return answers;
}

}  // namespace kzm::tests

#endif
