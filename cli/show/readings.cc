#include "cli/show/readings.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>

#include "core/rows.h"

namespace kzm::cli {
namespace {

struct QuantityRow {
  Quantity quantity;
  std::string_view unit;
  double warning;   // at this value, and on the side on which `critical` is
  double critical;  // the same
};

constexpr double kNever = std::numeric_limits<double>::infinity();

// A battery warns when it is low.
// clang-format off
constexpr QuantityRow kRows[] = {
    {Quantity::bandwidth,    "B/s",  kNever, kNever},
    {Quantity::diskActivity, "B/s",  kNever, kNever},
    {Quantity::space,        "B",    kNever, kNever},
    {Quantity::memory,       "B",    kNever, kNever},
    {Quantity::part,         "1",    0.8,    0.95},
    {Quantity::load,         "1",    kNever, kNever},
    {Quantity::temperature,  "°C",   80.0,   95.0},
    {Quantity::level,        "1",    0.2,    0.05},
    {Quantity::fan,          "rpm",  kNever, kNever},
    {Quantity::current,      "A",    kNever, kNever},
    {Quantity::power,        "W",    kNever, kNever},
    {Quantity::voltage,      "V",    kNever, kNever},
    {Quantity::light,        "lx",   kNever, kNever},
    {Quantity::frequency,    "MHz",  kNever, kNever},
    {Quantity::capacity,     "mAh",  kNever, kNever},
    {Quantity::state,        "",     kNever, kNever},
};
// clang-format on
static_assert(core::areInOrder(kRows, &QuantityRow::quantity), "a quantity has no row, or not its place");

// How readings of one item are distinguished without words.
struct Sign {
  std::string_view reading;
  std::string_view sign;
};
constexpr Sign kSigns[] = {{"received", "↓"}, {"sent", "↑"}, {"read", "↓"}, {"written", "↑"}};

const QuantityRow& rowOf(Quantity quantity) { return kRows[static_cast<std::size_t>(quantity)]; }

}  // namespace

std::string_view unitOf(Quantity quantity) { return rowOf(quantity).unit; }

bool isPart(Quantity quantity) { return quantity == Quantity::part || quantity == Quantity::level; }

bool isRate(Quantity quantity) { return quantity == Quantity::bandwidth || quantity == Quantity::diskActivity; }

Level levelOf(const Measured& reading) {
  const QuantityRow& row = rowOf(reading.quantity);
  if (!reading.value.has_value()) return Level::normal;
  const auto isAt = [&](double bound) {
    return row.critical < row.warning ? *reading.value <= bound : *reading.value >= bound;
  };
  if (isAt(row.critical)) return Level::critical;
  return isAt(row.warning) ? Level::warning : Level::normal;
}

std::string_view signOf(std::string_view name) {
  const auto* row = std::ranges::find(kSigns, name, &Sign::reading);
  return row == std::end(kSigns) ? std::string_view() : row->sign;
}

}  // namespace kzm::cli
