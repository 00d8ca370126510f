// Each allocation of each call fails in turn, in a process of its own: the call fails cleanly or gives the right
// answer, and from then on every call gives the right one.
//
//   kzm_faults              the names of the calls
//   kzm_faults NAME...      tries these; a line for each: its points cold and warm, and how they went
//
// Cold: nothing was called before. Warm: the same call was made before. It ends with status 1 when an answer is wrong
// or when code of ours ends the process. ICU and GLib end it at some of their allocations; those are counted apart.
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <new>
#include <numeric>
#include <optional>
#include <stdexcept>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "catalogue/callables.h"
#include "tests/faults/failing_allocator.h"
#include "tests/support/processes.h"
#include "tests/support/sample_calls.h"

namespace kzm::tests {
namespace {

using catalogue::Callable;
using catalogue::Json;

constexpr std::size_t kMostColdPoints = 2000;
constexpr unsigned kMostSeconds = 10;

// How a call went, and those after it.
enum class Went : int { failed, right, failsOn, wrong, noSuchPoint, ended, count };

// Seen by a process and by the one that started it.
struct Shared {
  std::array<char, 1 << 16> answer;
  std::array<char, 128> file;  // whose code the allocation failed in or, later, the process ended in
};

Shared& shared() {
  static void* const memory =
      ::mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  return *static_cast<Shared*>(memory);
}

template <std::size_t N>
void store(std::array<char, N>& place, std::string_view text) {
  const std::size_t size = std::min(text.size(), N - 1);
  std::memcpy(place.data(), text.data(), size);
  place[size] = '\0';
}

extern "C" void noteEnd(int signal) {
  stopFailing();
  store(shared().file, innermostCaller());
  ::signal(signal, SIG_DFL);
  ::raise(signal);
}

Went wrong(std::string_view answer) {
  store(shared().answer, answer);
  return Went::wrong;
}

// An exception that is no failed allocation is a wrong answer.
template <class Body>
Went resultOf(const Body& body) {
  try {
    return body();
  } catch (const std::exception& error) {
    return wrong(error.what());
  }
}

// What a process of its own finds.
template <class Body>
Went inProcess(const Body& body) {
  store(shared().file, {});
  const int end = endOf(
      [&] {
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nowhere, STDERR_FILENO);
        for (const int signal : {SIGABRT, SIGSEGV, SIGBUS, SIGTRAP, SIGILL, SIGFPE}) ::signal(signal, noteEnd);
        return static_cast<int>(resultOf(body));
      },
      kMostSeconds);
  return end >= 0 && end < static_cast<int>(Went::count) ? static_cast<Went>(end) : Went::ended;
}

// How the points of a call went.
struct Tally {
  std::array<std::size_t, static_cast<std::size_t>(Went::count)> count{};
  std::map<std::string, std::size_t> ends;        // by the file whose code it was
  std::map<std::string, std::size_t> remembered;  // failing on, by the file whose code remembers it

  std::size_t& operator[](Went went) { return count[static_cast<std::size_t>(went)]; }
};

// ICU and GLib end the process at some of their allocations, and ICU remembers what it could not make.
bool isTheirs(std::string_view file) { return file.starts_with("libicu") || file.starts_with("libglib-"); }

class Trial {
 public:
  explicit Trial(const Callable& callable) : callable_(callable), arguments_(sampleArguments(callable)) {
    const Went went = inProcess([&] {
      store(shared().answer, answer());
      return Went::right;
    });
    if (went != Went::right) throw std::runtime_error(std::string(callable.name) + " fails by itself");
    expected_ = shared().answer.data();
  }

  Tally pointsOf(bool warm) {
    Tally tally;
    for (std::size_t point = 1; warm || point <= kMostColdPoints; ++point) {
      const Went went = inProcess([&] { return tryPoint(point, warm); });
      if (went == Went::noSuchPoint) break;
      ++tally[went];
      if (went == Went::ended) ++tally.ends[shared().file.data()];
      if (went == Went::failsOn) ++tally.remembered[shared().file.data()];
      if (went == Went::wrong) {
        std::fprintf(stderr, "%s, %s, allocation %zu, made by %s: %s\n", std::string(callable_.name).c_str(),
                     warm ? "warm" : "cold", point, shared().file.data(), shared().answer.data());
      }
    }
    return tally;
  }

 private:
  [[nodiscard]] std::string answer() const { return callable_.call(arguments_).json; }

  // In the new process.
  [[nodiscard]] Went tryPoint(std::size_t point, bool warm) const {
    if (warm) static_cast<void>(answer());
    std::optional<std::string> result;
    failAllocation(point, []() noexcept { store(shared().file, innermostCaller()); });
    try {
      result = answer();
    } catch (const std::bad_alloc&) {
      result.reset();
    }
    if (!stopFailing()) return Went::noSuchPoint;
    if (result.has_value() && *result != expected_) return wrong(*result);
    for (int times = 0; times < 2; ++times) {
      try {
        if (const std::string again = answer(); again != expected_) return wrong(again);
      } catch (const std::bad_alloc&) {
        return Went::failsOn;
      }
    }
    return result.has_value() ? Went::right : Went::failed;
  }

  const Callable& callable_;
  Json arguments_;
  std::string expected_;
};

// Each library and how often: "libicuuc 3".
std::string listOf(const std::map<std::string, std::size_t>& files) {
  std::string list;
  for (const auto& [file, count] : files) {
    list += (list.empty() ? "" : ", ") + file.substr(0, file.find('.')) + " " + std::to_string(count);
  }
  return list;
}

// Five cells of the table, and whether all is well.
bool report(Tally& tally) {
  const std::size_t points = std::accumulate(tally.count.begin(), tally.count.end(), std::size_t{0});
  std::printf(" | %zu | %zu | %zu | %s | %s", points, tally[Went::failed], tally[Went::right],
              listOf(tally.remembered).c_str(), listOf(tally.ends).c_str());
  if (tally[Went::wrong] > 0) std::printf(" **%zu WRONG**", tally[Went::wrong]);
  const auto areTheirs = [](const auto& files) {
    return std::ranges::all_of(files, [](const auto& row) { return isTheirs(row.first); });
  };
  return tally[Went::wrong] == 0 && areTheirs(tally.ends) && areTheirs(tally.remembered);
}

bool tryCall(const Callable& callable) {
  Trial trial(callable);
  Tally cold = trial.pointsOf(false);
  Tally warm = trial.pointsOf(true);
  std::printf("| `%s`", std::string(callable.name).c_str());
  const bool isColdWell = report(cold);
  const bool isWarmWell = report(warm);
  std::printf(" |\n");
  return isColdWell && isWarmWell;
}

}  // namespace
}  // namespace kzm::tests

int main(int count, char** words) {
  using namespace kzm;
  tests::prepareCallers();
  if (count == 1) {
    for (const catalogue::Callable& callable : catalogue::callables()) std::puts(std::string(callable.name).c_str());
    return 0;
  }
  bool isWell = true;
  try {
    for (const std::string_view name : std::span(words, static_cast<std::size_t>(count)).subspan(1)) {
      const auto callables = catalogue::callables();
      const auto callable = std::ranges::find(callables, name, &catalogue::Callable::name);
      if (callable == callables.end()) throw std::invalid_argument("no call \"" + std::string(name) + "\"");
      isWell = tests::tryCall(*callable) && isWell;
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "kzm_faults: %s\n", error.what());
    return 2;
  }
  return isWell ? 0 : 1;
}
