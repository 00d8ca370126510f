// Every call for a counter of instructions, which counts in kzm_counted alone and reports after each one.
#include <cstdio>

#include "bench/calls.h"
#include "bench/parts.h"

// Makes the call once with each value. The counter knows it by this name.
extern "C" [[gnu::noinline]] void kzm_counted(kzm::bench::Pass pass, kzm::bench::Span values) { pass(values); }

namespace kzm::bench {

void makeCountedCalls() {
  constexpr std::size_t kFew = 128;
  constexpr std::size_t kMany = 384;  // the difference of the two is what warm calls cost
  for (const Kind kind : kKinds) {
    for (const Call& call : calls(kind)) {
      const Span values = call.values();
      call.pass(values.first(kMany));
      kzm_counted(call.pass, values.first(kFew));
      kzm_counted(call.pass, values.first(kMany));
      std::printf("%zu\t%s\n", kMany - kFew, call.name);
    }
  }
}

}  // namespace kzm::bench
