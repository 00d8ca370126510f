#include <KZMUtilities/percentage.h>

#include "core/number_text.h"
#include "core/options.h"
#include "core/reading.h"
#include "core/template.h"
#include "core/warm.h"

namespace kzm::core {
namespace {

// Both end in one lone percent sign, which the format operation leaves as it is.
const Template& percentageTemplate(const Dictionary& options) {
  static const Template& tight = *new Template("%@%");
  static const Template& spaced = *new Template("%@ %");
  return readBoolean(options.find(kSpace)) ? spaced : tight;
}

NumberText percentageNumber(const Dictionary& options, double percent) {
  const NumberFormatter& formatter = warmFormatter(DigitRule::atMost, readInteger(options.find(kDecimals)));
  return {formatter, percent};
}

}  // namespace
}  // namespace kzm::core

std::string KZMUtilitiesFormatPercentage(const kzm::Dictionary& options, double percent) {
  using namespace kzm::core;
  return percentageTemplate(options).filled(percentageNumber(options, percent));
}

kzm::AttributedString KZMUtilitiesFormatPercentageWithAttributes(const kzm::Dictionary& options, double percent) {
  using namespace kzm::core;
  return percentageTemplate(options).composed(percentageNumber(options, percent).string(),
                                              attributesOf(options, kAttributesMain),
                                              attributesOf(options, kAttributesUnits));
}
