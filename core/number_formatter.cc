#include <algorithm>
#include <string>
#include <utility>

#include <KZMUtilities/formatters.h>

#include "core/number_text.h"
#include "core/options.h"
#include "core/reading.h"
#include "core/shared.h"
#include "core/warm.h"
#include "port/current_locale.h"

namespace kzm {
namespace {

int applied(std::int64_t digits) {
  return static_cast<int>(std::clamp<std::int64_t>(digits, 0, core::kMostFractionDigits));
}

}  // namespace

NumberFormatter::NumberFormatter(std::int64_t minimumFractionDigits, std::int64_t maximumFractionDigits)
    : minimum_(minimumFractionDigits),
      maximum_(maximumFractionDigits),
      leastDigits_(applied(minimum_)),
      mostDigits_(std::max(leastDigits_, applied(maximum_))),
      symbols_(&port::currentNumberSymbols()) {}

NumberFormatter::~NumberFormatter() = default;

std::string NumberFormatter::string(double value) const { return core::NumberText(*this, value).string(); }

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
  const std::int64_t decimals = kzm::core::readInteger(options.find(kzm::core::kDecimals));
  return kzm::core::warmFormatter(kzm::core::DigitRule::atMost, decimals).string(value);
}
