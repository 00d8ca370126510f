// What is left by an allocation that fails, in our own code or inside ICU. ICU's own code ends the process at
// some of its allocations; at all others the call fails or gives the right answer, and so do all that follow.
#include <cstddef>
#include <functional>
#include <glib.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <unistd.h>

#include <KZMUtilities/process.h>

#include "port/environment_locale.h"
#include "port/main_queue.h"
#include "port/measurement_habits.h"
#include "port/number_symbols.h"
#include "port/posix_variant.h"
#include "port/regex.h"
#include "port/time_zone.h"
#include "port/week_rules.h"
#include "tests/support/allocations.h"
#include "tests/support/processes.h"
#include "tests/support/sweeps.h"

namespace kzm::port {
namespace {

using tests::ColdCall;
using tests::Heap;

// Too long for the room that a string has in itself.
const std::string kWord = "(before|a word that is not there at all)";
const std::string kNumber = "([0-9]+)";

// Each allocation of a cold call, or one in seven, in a process of its own: the call throws or is right, and so is the
// next one. After a failure of our own allocations the next one is right.
void expectRightOrFailed(const char* what, Heap heap, const std::function<bool()>& isRight) {
  bool wasRight = true;
  const auto call = [&] { wasRight = isRight(); };
  const auto check = [&] { return wasRight && isRight(); };
  const std::size_t step = tests::inSweep<std::size_t>(1, 7);
  std::size_t number = 1;
  for (ColdCall went{}; went != ColdCall::noSuchAllocation; number += step) {
    went = tests::coldCallWithFailure(heap, number, call, check);
    EXPECT_NE(went, ColdCall::wrong) << what << ", allocation " << number;
    if (heap == Heap::icu) continue;
    EXPECT_NE(went, ColdCall::failingOn) << what << ", allocation " << number;
    EXPECT_NE(went, ColdCall::ended) << what << ", allocation " << number;
  }
}

struct Cold {
  const char* what;
  bool (*isRight)();
};

// First, for what follows leaves ICU warm.
TEST(FailingAllocation, IsNoOtherLocaleAndNoOtherZoneEverAfter) {
  const Cold calls[] = {
      {"number style", [] { return numberSymbols("de_DE").groupSeparator == "."; }},
      {"number style of a region", [] { return numberSymbols("de_CH").groupSeparator == "’"; }},
      {"digits of a language", [] { return numberSymbols("ar_EG").digits[1] == "١"; }},
      {"known language", [] { return usableLocale("de_DE.UTF-8") == "de_DE"; }},
      {"identifier", [] { return localeIdentifier("sr_RS@latin") == "sr_Latn_RS"; }},
      {"measurement", [] { return measurementHabitsOf("en@rg=gbzzzz").region == "GB"; }},
      {"likely region", [] { return measurementHabitsOf("sv").region == "SE"; }},
      {"weeks of a region", [] { return weekRulesOf("de_CH").daysInFirstWeek == 4; }},
      {"variant", [] { return takesPosixVariant("en_US"); }},
      {"zone",
       [] {
         const Zone* zone = namedZone("Asia/Tokyo");
         return zone != nullptr && zone->identifier() == "Asia/Tokyo" && zone->offset(0) == 32400;
       }},
  };
  for (const Cold& call : calls) {
    for (const Heap heap : {Heap::own, Heap::icu}) {
      if (heap == Heap::own || std::string_view(call.what) != "zone")
        expectRightOrFailed(call.what, heap, call.isRight);
    }
  }
}

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

// The same call twice, so that what ICU keeps of the first one is there already.
TEST(FailingAllocation, InsideIcuKeepsNoListOfLocales) {
  const auto ask = [] { static_cast<void>(usableLocale("sr_RS@latin")); };
  ask();
  std::size_t number = 0;
  for (ColdCall went{}; went != ColdCall::noSuchAllocation;) {
    ++number;
    const auto keepsNothing = [&] {
      const std::ptrdiff_t before = tests::icuBlocks();
      static_cast<void>(tests::callWithFailure(Heap::icu, number, ask));
      return tests::icuBlocks() == before;
    };
    went = tests::coldCallWithFailure(Heap::icu, number, ask, keepsNothing);
    EXPECT_NE(went, ColdCall::wrong) << "allocation " << number;
  }
  EXPECT_GT(number, 10U);
}

TEST(FailingAllocation, LosesNoDescriptor) {
  const Pipe pipe;
  struct Case {
    const char* what;
    std::function<FileHandle()> open;
  };
  const Case cases[] = {
      {"a file to read", [] { return FileHandle::openForReading("/dev/null"); }},
      {"a file to write", [] { return FileHandle::openForWriting("/dev/null"); }},
      {"a copy", [&] { return pipe.readingEnd().duplicate(); }},
      {"a pipe", [] { return Pipe().readingEnd(); }},
  };
  for (const Case& c : cases) {
    const std::ptrdiff_t before = tests::openDescriptors();
    std::size_t number = 1;
    while (tests::callWithFailure(Heap::own, number, [&] { static_cast<void>(c.open()); })) {
      EXPECT_EQ(tests::openDescriptors(), before) << c.what << ", allocation " << number;
      ++number;
    }
    EXPECT_GT(number, 1U) << c.what;
  }
}

// Its descriptor may be another file's by the time that the main loop runs.
TEST(FailingAllocation, LeavesNoDescriptorWatched) {
  const Pipe pipe;
  ASSERT_EQ(::write(pipe.writingEnd().descriptor(), "x", 1), 1);
  const auto runs = std::make_shared<int>(0);
  const auto watch = [&] {
    static_cast<void>(mainQueue().whenReadable(pipe.readingEnd().descriptor(), [runs] { ++*runs; }));
  };
  std::size_t number = 1;
  while (tests::callWithFailure(Heap::own, number, watch)) {
    EXPECT_FALSE(g_main_context_iteration(nullptr, FALSE)) << "allocation " << number;
    EXPECT_EQ(*runs, 0) << "allocation " << number;
    EXPECT_EQ(runs.use_count(), 1) << "the action is released, allocation " << number;
    ++number;
  }
  EXPECT_GT(number, 2U);
}

}  // namespace
}  // namespace kzm::port
