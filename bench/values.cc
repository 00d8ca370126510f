#include "bench/values.h"

#include <array>
#include <cmath>
#include <random>

#include <KZMUtilities/bytes.h>

#include "bench/options.h"

namespace kzm::bench {
namespace {

using Array = std::array<double, kValues>;

// The powers of two between the exponents are equally likely, and so is what is between them.
Array logUniform(double least, double most) {
  std::mt19937_64 random(20260101);
  Array values{};
  for (double& value : values) {
    const double part = static_cast<double>(random() >> 11U) * 0x1p-53;
    value = std::exp2(least + part * (most - least));
  }
  return values;
}

Array scaled() {
  Array values{};
  for (std::size_t i = 0; i < kValues; ++i) {
    values[i] = *KZMUtilitiesBandwidthData(typicalRate().dictionary, rates()[i]).find("value")->real();
  }
  return values;
}

}  // namespace

Span rates() {
  static const Array values = logUniform(0.0, 44.0);
  return values;
}

Span sizes() {
  static const Array values = logUniform(0.0, 62.0);
  return values;
}

Span readings() {
  static const Array values = logUniform(std::log2(0.01), std::log2(10000.0));
  return values;
}

Span scaledRates() {
  static const Array values = scaled();
  return values;
}

}  // namespace kzm::bench
