// Maximum and minimum of doubles that pass over NaN and the infinities.
#include <cmath>

#include <KZMUtilities/guards.h>

namespace {

// What is left when at least one of the two is not finite.
double onlyFinite(double a, double b) {
  if (std::isfinite(a)) return a;
  return std::isfinite(b) ? b : 0.0;
}

bool bothFinite(double a, double b) { return std::isfinite(a) && std::isfinite(b); }

}  // namespace

// Deliberate: on a tie the maximum is its first argument and the minimum its second, which shows with signed zeros
// (MinMax.ATieIsTheFirstArgumentOfTheMaximumAndTheSecondOfTheMinimum).
double KZMMAXDouble(double a, double b) {
  if (!bothFinite(a, b)) return onlyFinite(a, b);
  return b > a ? b : a;
}

double KZMMINDouble(double a, double b) {
  if (!bothFinite(a, b)) return onlyFinite(a, b);
  return a < b ? a : b;
}
