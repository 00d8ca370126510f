// The runs of an attributed text as values, to be compared and printed.
#ifndef KZM_TESTS_SUPPORT_RUNS_H
#define KZM_TESTS_SUPPORT_RUNS_H

#include <ostream>
#include <string>
#include <vector>

#include <KZMUtilities/attributed_string.h>

namespace kzm::tests {

struct Run {
  std::string text;
  Value attributes;

  [[nodiscard]] friend bool operator==(const Run&, const Run&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Run& run) { return out << '"' << run.text << '"'; }
};
using Runs = std::vector<Run>;

[[nodiscard]] inline Runs runsOf(const AttributedString& text) {
  Runs runs;
  for (const AttributedString::Run& run : text.runs()) runs.push_back({std::string(run.text), run.attributes});
  return runs;
}

}  // namespace kzm::tests

#endif
