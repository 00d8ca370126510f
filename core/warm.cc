#include "core/warm.h"

#include <array>
#include <utility>

#include "core/shared.h"
#include "port/per_thread.h"

namespace kzm::core {
namespace {

using Formatter = std::shared_ptr<const NumberFormatter>;

// Nobody reads more digits than these every second; larger counts are fetched from the cache each time.
constexpr std::int64_t kHeldDigits = 16;

struct Warm {
  std::uint64_t epoch = 0;
  std::array<std::array<Formatter, kHeldDigits>, 2> formatters;
  std::array<std::unique_ptr<const UnitTexts>, kUnitFamilies> tables;
  Formatter rare;
};

Formatter fetch(DigitRule rule, std::int64_t digits) {
  return rule == DigitRule::exactly ? KZMUtilitiesDecimalFormatterWithFractions(digits, digits)
                                    : KZMUtilitiesDecimalFormatterWithMaximum(digits);
}

Warm& warm() {
  Warm& held = port::perThread<Warm>();
  if (const std::uint64_t now = cacheEpoch(); held.epoch != now) {
    held = Warm{};
    held.epoch = now;
  }
  return held;
}

}  // namespace

const NumberFormatter& warmFormatter(DigitRule rule, std::int64_t digits) {
  Warm& held = warm();
  const bool isHeld = digits >= 0 && digits < kHeldDigits;
  Formatter& slot =
      isHeld ? held.formatters[static_cast<std::size_t>(rule)][static_cast<std::size_t>(digits)] : held.rare;
  if (slot == nullptr || !isHeld) slot = fetch(rule, digits);
  return *slot;
}

const Template* warmUnit(const UnitTable& table, std::size_t row) {
  auto& slot = warm().tables[static_cast<std::size_t>(table.family)];
  if (slot == nullptr) slot = std::make_unique<const UnitTexts>(unitTexts(table));
  const std::optional<Template>& text = (*slot)[row];
  return text.has_value() ? &*text : nullptr;
}

}  // namespace kzm::core
