#include "port/per_thread.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>
#include <set>
#include <thread>
#include <vector>

namespace kzm::port {
namespace {

std::atomic<int> alive{0};

struct Counted {
  Counted() { ++alive; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { --alive; }
  int number = 0;
};

TEST(PerThread, EveryThreadHasItsOwnObjectAndKeepsIt) {
  Counted& mine = perThread<Counted>();
  mine.number = 1;
  const int before = alive;
  for (int round = 0; round < 20; ++round) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
      threads.emplace_back([&mine, i] {
        EXPECT_NE(&perThread<Counted>(), &mine);
        EXPECT_EQ(perThread<Counted>().number, 0);
        perThread<Counted>().number = i;
        EXPECT_EQ(perThread<Counted>().number, i);
      });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(alive, before) << "the objects of ended threads are deleted";
  }
  EXPECT_EQ(perThread<Counted>().number, 1);
}

struct OfThreadLocal {
  ~OfThreadLocal() { perThread<Counted>().number = 1; }
};

// A key's destructor may run before or after the deletion of the thread's object; both keys are used in both orders.
void useAtThreadEnd(void*) { perThread<Counted>().number = 2; }

TEST(PerThread, CanBeUsedWhileTheThreadEnds) {
  const int before = alive;
  pthread_key_t late{};
  ASSERT_EQ(pthread_key_create(&late, &useAtThreadEnd), 0);
  for (const bool asksFirst : {true, false}) {
    std::thread([late, asksFirst] {
      static thread_local const OfThreadLocal kAsksWhenDestroyed;
      (void)&kAsksWhenDestroyed;
      if (asksFirst) (void)perThread<Counted>();
      pthread_setspecific(late, &alive);
    }).join();
    EXPECT_EQ(alive, before);
  }
  pthread_key_delete(late);
}

struct AsksInItsDestructor {
  AsksInItsDestructor() = default;
  AsksInItsDestructor(const AsksInItsDestructor&) = delete;
  AsksInItsDestructor& operator=(const AsksInItsDestructor&) = delete;
  ~AsksInItsDestructor() {
    if (!again) perThread<AsksInItsDestructor>().again = true;
  }
  bool again = false;
  Counted counted;
};

TEST(PerThread, AnObjectsOwnDestructorMayAskForANewOne) {
  const int before = alive;
  std::thread([] { (void)perThread<AsksInItsDestructor>(); }).join();
  EXPECT_EQ(alive, before);
}

// Runs after main has returned, when the leak check of the sanitizer is still to come.
struct AsksAtTheEndOfTheProcess {
  ~AsksAtTheEndOfTheProcess() { perThread<std::vector<int>>().assign(100, 1); }
};
const AsksAtTheEndOfTheProcess kAsksAtTheEnd;

TEST(PerThread, CanBeUsedFromStaticDestructors) {
  perThread<std::vector<int>>().assign(10, 1);
  EXPECT_EXIT(std::exit(perThread<std::vector<int>>().size() == 10 ? 0 : 1), testing::ExitedWithCode(0), "");
}

struct Kept {
  Kept() { last = this; }
  int number = 0;
  static inline std::atomic<Kept*> last{nullptr};
};

TEST(PerThread, WithoutAKeyTheObjectOutlivesItsThread) {
  std::vector<pthread_key_t> keys;
  for (pthread_key_t key{}; pthread_key_create(&key, nullptr) == 0;) keys.push_back(key);
  std::thread([] { perThread<Kept>().number = 1; }).join();
  for (const pthread_key_t key : keys) pthread_key_delete(key);
  const std::unique_ptr<Kept> kept(Kept::last.load());
  ASSERT_NE(kept, nullptr);
  EXPECT_EQ(kept->number, 1);
}

}  // namespace
}  // namespace kzm::port
