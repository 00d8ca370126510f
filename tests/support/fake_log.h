// A system log that keeps its lines for the test to read.
#ifndef KZM_TESTS_SUPPORT_FAKE_LOG_H
#define KZM_TESTS_SUPPORT_FAKE_LOG_H

#include <string>
#include <string_view>
#include <vector>

#include "port/log.h"

namespace kzm::tests {

class FakeLog final : public port::Log {
 public:
  void write(std::string_view text) noexcept override { lines.emplace_back(text); }
  std::vector<std::string> lines;
};

}  // namespace kzm::tests

#endif
