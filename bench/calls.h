// The calls that a refresh of a monitor makes, and how fast each one is to be.
#ifndef KZM_BENCH_CALLS_H
#define KZM_BENCH_CALLS_H

#include <span>

#include "bench/pass.h"

namespace kzm::bench {

enum class Kind { plain, weather, attributed, data, c };
inline constexpr Kind kKinds[] = {Kind::plain, Kind::weather, Kind::attributed, Kind::data, Kind::c};

struct Call {
  const char* name;
  double reach;  // times the floor; 0 for none
  Span (*values)();
  Pass pass;
};

[[nodiscard]] std::span<const Call> calls(Kind kind);

/// What every number costs at least: one digit with the standard library's own conversion, and a unit.
void floorPass(Span scaled);
/// The locale library's formatter, made before, for the number alone.
void icuPass(Span scaled);

}  // namespace kzm::bench

#endif
