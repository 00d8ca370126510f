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
  const auto family = static_cast<std::size_t>(table.family);
  const UnitTexts* texts = warm().tables[family].get();
  if (texts == nullptr) [[unlikely]] {
    // Looking texts up may lead through a host's own library and back here, and the cache may change meanwhile: what
    // was made is kept under the count that it was made for.
    const std::uint64_t epoch = cacheEpoch();
    auto made = std::make_unique<const UnitTexts>(unitTexts(table));
    texts = made.get();
    Warm& held = port::perThread<Warm>();
    held.epoch = epoch;
    held.tables[family] = std::move(made);
  }
  const std::optional<Template>& text = (*texts)[row];
  return text.has_value() ? &*text : nullptr;
}

}  // namespace kzm::core
