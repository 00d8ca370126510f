#include "port/retried.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <vector>

namespace kzm::port {
namespace {

struct Answer {
  int result;
  int error;
};

TEST(Retried, ACallIsMadeAgainUntilNoSignalInterruptsIt) {
  struct Case {
    const char* why;
    std::vector<Answer> answers;
    int result;
    std::size_t calls;
  };
  const Case cases[] = {
      {"it succeeds", {{7, 0}}, 7, 1},
      {"zero is a success", {{0, EINTR}, {1, 0}}, 0, 1},
      {"interrupted twice", {{-1, EINTR}, {-1, EINTR}, {5, EINTR}, {6, 0}}, 5, 3},
      {"another failure", {{-1, EBADF}, {5, 0}}, -1, 1},
      {"a failure after a signal", {{-1, EINTR}, {-1, EAGAIN}, {5, 0}}, -1, 2},
  };
  for (const Case& c : cases) {
    std::size_t calls = 0;
    const auto call = [&] {
      const Answer& answer = c.answers.at(calls++);
      errno = answer.error;
      return answer.result;
    };
    EXPECT_EQ(retried(call), c.result) << c.why;
    EXPECT_EQ(calls, c.calls) << c.why;
  }
}

}  // namespace
}  // namespace kzm::port
