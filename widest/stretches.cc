#include "widest/stretches.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "core/option_values.h"
#include "widest/search.h"

namespace kzm::widest {
namespace {

// The bounds of all decimals rules in the options. Those of a rule that the family does not read do no harm.
std::vector<double> ruleBounds(const Dictionary& options) {
  std::vector<double> bounds;
  for (const Dictionary::Entry& option : options) {
    const Array* rules = option.value.array();
    if (rules == nullptr) continue;
    for (const Value& entry : *rules) {
      if (const Dictionary* rule = entry.dictionary()) bounds.push_back(core::readDouble(rule->find(core::kValue)));
    }
  }
  return bounds;
}

// What the values of one stretch have in common. With it, a rule holds for all of them or for none.
struct Look {
  std::optional<std::size_t> row;
  bool isNegative = false;
  bool isFinite = true;
  std::ptrdiff_t rulesPassed = 0;
  friend bool operator==(const Look&, const Look&) = default;
};

class Cutter {
 public:
  Cutter(const Family& family, const Dictionary& options)
      : family_(family), options_(options), bounds_(ruleBounds(options)) {}

  // Values between two that are shown in their own way: every look has one stretch of them.
  void cut(double from, double to) {
    while (from <= to) {
      const Look look = lookOf(from);
      const bool isOne = lookOf(to) == look;
      const double next = isOne ? to : firstWhere(from, to, [&](double value) { return lookOf(value) != look; });
      stretches.push_back({from, isOne ? to : nextBefore(next)});
      if (isOne) return;
      from = next;
    }
  }

  std::vector<Stretch> stretches;

 private:
  [[nodiscard]] Look lookOf(double value) const {
    const std::optional<core::Reading> reading = family_.reading(options_, value);
    if (!reading.has_value()) return {};
    const double shown = reading->amount.value;
    const auto isPassed = [shown](double bound) { return bound <= shown; };
    return {reading->row, std::signbit(shown), std::isfinite(shown), std::ranges::count_if(bounds_, isPassed)};
  }

  const Family& family_;
  const Dictionary& options_;
  std::vector<double> bounds_;
};

}  // namespace

std::vector<Stretch> stretchesOf(const Family& family, const Dictionary& options, ValueRange values) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Cutter cutter(family, options);
  if (!(values.lowest <= values.highest)) return {};  // NaN too
  double from = values.lowest;
  const auto cutAlone = [&](double value) {
    if (value < from || value > values.highest) return;
    if (from < value) cutter.cut(from, nextBefore(value));
    cutter.stretches.push_back({value, value});
    from = nextAfter(value);
  };
  cutAlone(-kInfinity);
  for (const double value : family.apart) cutAlone(value);
  if (from < kInfinity) cutter.cut(from, std::min(values.highest, std::numeric_limits<double>::max()));
  if (values.highest == kInfinity) cutter.stretches.push_back({kInfinity, kInfinity});
  return cutter.stretches;
}

}  // namespace kzm::widest
