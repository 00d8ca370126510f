// What is left behind by an allocation that fails, in our own code or inside ICU. ICU's own code ends the process at
// some of its allocations; at all others the call fails or gives the right answer, and so do all that follow.
#include <cstddef>
#include <gtest/gtest.h>
#include <string>

#include "port/regex.h"
#include "tests/support/allocations.h"

namespace kzm::port {
namespace {

using tests::ColdCall;
using tests::Heap;

// Too long for the room that a string has in itself.
const std::string kWord = "(before|a word that is not there at all)";
const std::string kNumber = "([0-9]+)";

TEST(FailingAllocation, NeverPairsAPatternWithTheProgramOfAnother) {
  ASSERT_EQ(firstGroup("before 123", kNumber), "123");
  std::size_t number = 1;
  while (tests::callWithFailure(Heap::own, number, [] { static_cast<void>(firstGroup("before 123", kWord)); })) {
    ASSERT_EQ(firstGroup("before 123", kNumber), "123") << "allocation " << number;
    ASSERT_EQ(firstGroup("before 123", kWord), "before") << "allocation " << number;
    ASSERT_EQ(firstGroup("before 123", kNumber), "123") << "allocation " << number;
    ++number;
  }
  EXPECT_GT(number, 1U);
}

TEST(FailingAllocation, InsideIcuIsNoSearchWithoutAMatch) {
  std::string answer = "before";
  const auto search = [&] { answer = firstGroup("before 123", kWord).value_or("no match"); };
  const auto isRight = [&] { return answer == "before" && firstGroup("before 123", kWord) == "before"; };
  for (const bool compiles : {true, false}) {
    static_cast<void>(firstGroup("", compiles ? kNumber : kWord));
    std::size_t number = 1;
    for (ColdCall call{}; call != ColdCall::noSuchAllocation; ++number) {
      call = tests::coldCallWithFailure(Heap::icu, number, search, isRight);
      EXPECT_NE(call, ColdCall::wrong) << "allocation " << number;
    }
    EXPECT_GT(number, compiles ? 30U : 5U);
  }
}

}  // namespace
}  // namespace kzm::port
