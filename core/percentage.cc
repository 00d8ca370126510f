#include <KZMUtilities/percentage.h>

#include "core/amounts.h"
#include "core/option_values.h"
#include "core/rendering.h"

namespace kzm::core {
namespace {

// Deliberate: percentages end in one lone percent sign, which the format operation leaves as it is, in every language
// (Percentage.TextsInBothRenderings).
constexpr Template kTight("%@%");
constexpr Template kSpaced("%@ %");

const Template& unitOf(const Dictionary& options) { return readBoolean(options.find(kSpace)) ? kSpaced : kTight; }

}  // namespace
}  // namespace kzm::core

std::string KZMUtilitiesFormatPercentage(const kzm::Dictionary& options, double percent) {
  using namespace kzm::core;
  return text(unitOf(options), unitlessAmount(options, percent));
}

kzm::AttributedString KZMUtilitiesFormatPercentageWithAttributes(const kzm::Dictionary& options, double percent) {
  using namespace kzm::core;
  return attributedText(unitOf(options), unitlessAmount(options, percent), options);
}
