#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

#include <KZMUtilities/guards.h>

namespace kzm {
namespace {

class RangeException : public Exception {
 public:
  explicit RangeException(int at) : Exception("Range", "index out of bounds"), index(at) {}
  int index;
};

using Completion = std::function<void(const Exception*)>;

// What a completion was called with, call by call: "success" or the exception's name.
struct Outcomes {
  std::vector<std::string> calls;
  void note(const Exception* exception) { calls.push_back(exception ? exception->name() : "success"); }
  Completion completion() {
    return [this](const Exception* exception) { note(exception); };
  }
};

TEST(Exception, ACopySaysTheSame) {
  const Exception first("Any", "reason");
  const Exception copy(first);
  Exception assigned("Other", "another reason");
  assigned = first;
  for (const Exception& each : {copy, assigned}) {
    EXPECT_EQ(each.name(), "Any");
    EXPECT_EQ(each.reason(), "reason");
    EXPECT_STREQ(each.what(), "reason");
  }
}

TEST(Exception, CarriesNameAndReason) {
  const Exception exception("Range", "index 7 beyond 3");
  EXPECT_EQ(exception.name(), "Range");
  EXPECT_EQ(exception.reason(), "index 7 beyond 3");
  EXPECT_STREQ(exception.what(), "index 7 beyond 3");
}

TEST(TryCatchBlock, RunsTheBlockOnce) {
  int runs = 0;
  KZMTryCatchBlock([&] { ++runs; });
  EXPECT_EQ(runs, 1);
}

TEST(TryCatchBlock, SwallowsPlatformExceptions) {
  EXPECT_NO_THROW(KZMTryCatchBlock([] { throw Exception("Any", "reason"); }));
  EXPECT_NO_THROW(KZMTryCatchBlock([] { throw RangeException(7); }));
}

TEST(TryCatchBlock, LetsEveryOtherKindPass) {
  EXPECT_THROW(KZMTryCatchBlock([] { throw std::runtime_error("other"); }), std::runtime_error);
  EXPECT_THROW(KZMTryCatchBlock([] { throw 7; }), int);
}

TEST(TryCatchBlock, AnEmptyBlockDoesNothing) { EXPECT_NO_THROW(KZMTryCatchBlock(nullptr)); }

TEST(TryCatchBlockWithError, ReportsSuccessByNull) {
  Outcomes outcomes;
  int runs = 0;
  KZMTryCatchBlockWithError([&] { ++runs; }, outcomes.completion());
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(outcomes.calls, std::vector<std::string>{"success"});
}

TEST(TryCatchBlockWithError, HandsOverTheExceptionOnceAndNeverNull) {
  Outcomes outcomes;
  KZMTryCatchBlockWithError([] { throw Exception("Any", "reason"); }, outcomes.completion());
  EXPECT_EQ(outcomes.calls, std::vector<std::string>{"Any"});
}

TEST(TryCatchBlockWithError, TheExceptionKeepsItsDynamicType) {
  int index = 0;
  KZMTryCatchBlockWithError([] { throw RangeException(7); },
                            [&](const Exception* exception) {
                              if (auto range = dynamic_cast<const RangeException*>(exception)) index = range->index;
                            });
  EXPECT_EQ(index, 7);
}

TEST(TryCatchBlockWithError, AnExceptionFromTheSuccessCallCallsTheCompletionASecondTime) {
  Outcomes outcomes;
  KZMTryCatchBlockWithError([] {},
                            [&](const Exception* exception) {
                              outcomes.note(exception);
                              if (!exception) throw Exception("FromCompletion", "reason");
                            });
  EXPECT_EQ(outcomes.calls, (std::vector<std::string>{"success", "FromCompletion"}));
}

TEST(TryCatchBlockWithError, AnExceptionFromTheErrorCallPassesOn) {
  int calls = 0;
  const Completion throwing = [&](const Exception*) {
    ++calls;
    throw RangeException(calls);
  };
  EXPECT_THROW(KZMTryCatchBlockWithError([] { throw Exception("Any", "reason"); }, throwing), RangeException);
  EXPECT_EQ(calls, 1);
  EXPECT_THROW(KZMTryCatchBlockWithError([] {}, throwing), RangeException) << "the second call's exception passes on";
  EXPECT_EQ(calls, 3);
}

TEST(TryCatchBlockWithError, LetsEveryOtherKindPassWithoutACall) {
  Outcomes outcomes;
  EXPECT_THROW(KZMTryCatchBlockWithError([] { throw std::runtime_error("other"); }, outcomes.completion()),
               std::runtime_error);
  EXPECT_TRUE(outcomes.calls.empty());
}

TEST(TryCatchBlockWithError, EmptyCallablesAreSurvived) {
  Outcomes outcomes;
  KZMTryCatchBlockWithError(nullptr, outcomes.completion());
  EXPECT_EQ(outcomes.calls, std::vector<std::string>{"success"});
  EXPECT_NO_THROW(KZMTryCatchBlockWithError([] { throw Exception("Any", "reason"); }, nullptr));
  EXPECT_NO_THROW(KZMTryCatchBlockWithError([] {}, nullptr));
  EXPECT_NO_THROW(KZMTryCatchBlockWithError(nullptr, nullptr));
}

}  // namespace
}  // namespace kzm
