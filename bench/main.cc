// Measures the library's calls and prints a table: what, how much, what is to be reached, and whether it is.
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <KZMUtilities/formatters.h>

#include "bench/parts.h"
#include "bench/report.h"

int main(int count, char** arguments) {
  using namespace kzm::bench;
  const std::string_view what = count > 1 ? arguments[1] : "";
  if (what == "--first") {
    makeFirstCall(std::strtoul(count > 2 ? arguments[2] : "0", nullptr, 10));
    return 0;
  }
  kzm::setCurrentLocale("en_US");
  if (what == "--counted") {
    makeCountedCalls();
    return 0;
  }
  if (!what.empty()) {
    std::fprintf(stderr, "kzm_bench: no option \"%s\"\n", arguments[1]);
    return 2;
  }
  measureCalls();
  measureLocales();
  measureThreads();
  measureGrowth();
  measureFirstCalls(arguments[0]);
  measurePrograms(arguments[0]);
  std::printf("\n%d out of reach\n", rowsOutOfReach());
}
