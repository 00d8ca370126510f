#include <algorithm>
#include <string>

#include <KZMUtilities/formatters.h>

#include "core/amounts.h"
#include "core/number_text.h"
#include "core/shared.h"
#include "port/current_locale.h"

namespace kzm {
namespace core {

struct FormatterParts {
  static NumberStyle style(const NumberFormatter& formatter) noexcept {
    return decimalStyle(*formatter.symbols_, formatter.minimum_, formatter.maximum_);
  }
};

NumberStyle styleOf(const NumberFormatter& formatter) noexcept { return FormatterParts::style(formatter); }

}  // namespace core

NumberFormatter::NumberFormatter(std::int64_t minimumFractionDigits, std::int64_t maximumFractionDigits)
    : minimum_(minimumFractionDigits), maximum_(maximumFractionDigits), symbols_(&port::currentNumberSymbols()) {}

NumberFormatter::~NumberFormatter() = default;

std::string NumberFormatter::string(double value) const { return core::numberAlone(core::styleOf(*this), value); }

}  // namespace kzm

std::shared_ptr<const kzm::NumberFormatter> KZMUtilitiesDecimalFormatterWithFractions(
    std::int64_t minimumFractionDigits, std::int64_t maximumFractionDigits) {
  const std::string key =
      "NumberFormatter-Decimal-" + std::to_string(minimumFractionDigits) + "." + std::to_string(maximumFractionDigits);
  return kzm::core::cachedObject<kzm::NumberFormatter>(key, [=] {
    return std::make_shared<const kzm::NumberFormatter>(minimumFractionDigits,
                                                        std::max(minimumFractionDigits, maximumFractionDigits));
  });
}

std::shared_ptr<const kzm::NumberFormatter> KZMUtilitiesDecimalFormatterWithMaximum(
    std::int64_t maximumFractionDigits) {
  const std::string key = "NumberFormatter-Decimal--." + std::to_string(maximumFractionDigits);
  return kzm::core::cachedObject<kzm::NumberFormatter>(
      key, [=] { return std::make_shared<const kzm::NumberFormatter>(0, maximumFractionDigits); });
}

std::string KZMUtilitiesFormatNumber(const kzm::Dictionary& options, double value) {
  using namespace kzm::core;
  return text(unitlessAmount(options, value));
}
