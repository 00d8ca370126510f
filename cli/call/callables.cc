#include "cli/call/callables.h"

#include <algorithm>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/resources.h>

namespace kzm::cli {
namespace {

// The bundle is always the library's own.
std::string localizedString(std::string_view key, std::string_view table, std::string_view comment) {
  return KZMLocalizedStringFromTableInBundle(key, table, bundleWithIdentifier(kBundleIdentifier),
                                             std::string(comment).c_str());
}

template <auto F>
constexpr Callable row(std::string_view name, std::string_view parameters) {
  return {name, parameters, adapt<F>, kKinds<F>};
}

const Callable kCallables[] = {
    row<KZMUtilitiesDecimalFormatterWithFractions>("KZMUtilitiesDecimalFormatterWithFractions", "minimum maximum"),
    row<KZMUtilitiesDecimalFormatterWithMaximum>("KZMUtilitiesDecimalFormatterWithMaximum", "maximum"),
    row<KZMUtilitiesPosixLocale>("KZMUtilitiesPosixLocale", "locale"),
    row<KZMUtilitiesFormatNumber>("KZMUtilitiesFormatNumber", "options value"),
    row<localizedString>("KZMLocalizedStringFromTableInBundle", "key table comment"),
    row<KZMUtilitiesFormatPercentage>("KZMUtilitiesFormatPercentage", "options percent"),
    row<KZMUtilitiesFormatPercentageWithAttributes>("KZMUtilitiesFormatPercentageWithAttributes", "options percent"),
    row<KZMUtilitiesBandwidthData>("KZMUtilitiesBandwidthData", "options bytesPerSecond"),
    row<KZMUtilitiesFormatBandwidth>("KZMUtilitiesFormatBandwidth", "options bytesPerSecond"),
    row<KZMUtilitiesFormatBandwidthWithAttributes>("KZMUtilitiesFormatBandwidthWithAttributes",
                                                   "options bytesPerSecond"),
    row<KZMUtilitiesDiskActivityData>("KZMUtilitiesDiskActivityData", "options bytesPerSecond"),
    row<KZMUtilitiesFormatDiskActivity>("KZMUtilitiesFormatDiskActivity", "options bytesPerSecond"),
    row<KZMUtilitiesFormatDiskActivityWithAttributes>("KZMUtilitiesFormatDiskActivityWithAttributes",
                                                      "options bytesPerSecond"),
    row<KZMUtilitiesSpaceData>("KZMUtilitiesSpaceData", "options bytes"),
    row<KZMUtilitiesFormatSpace>("KZMUtilitiesFormatSpace", "options bytes"),
    row<KZMUtilitiesFormatSpaceWithAttributes>("KZMUtilitiesFormatSpaceWithAttributes", "options bytes"),
    row<KZMUtilitiesMemoryData>("KZMUtilitiesMemoryData", "options bytes"),
    row<KZMUtilitiesFormatMemory>("KZMUtilitiesFormatMemory", "options bytes"),
    row<KZMUtilitiesFormatMemoryWithAttributes>("KZMUtilitiesFormatMemoryWithAttributes", "options bytes"),
};

}  // namespace

std::span<const Callable> callables() { return kCallables; }

Result callByName(std::string_view name, const Json& arguments) {
  const auto callable = std::find_if(std::begin(kCallables), std::end(kCallables),
                                     [name](const Callable& candidate) { return candidate.name == name; });
  if (callable == std::end(kCallables)) throw InputError("no function is named \"" + std::string(name) + "\"");
  if (arguments.size() != callable->kinds.size()) {
    throw InputError("wrong number of arguments (" + std::to_string(arguments.size()) + ") for " +
                     described(*callable));
  }
  return callable->call(arguments);
}

std::string described(const Callable& callable) {
  std::string text(callable.name);
  std::string_view names = callable.parameters;
  for (const std::string_view kind : callable.kinds) {
    const std::string_view name = names.substr(0, names.find(' '));
    names.remove_prefix(std::min(names.size(), name.size() + 1));
    text.append(" ").append(name).append(":").append(kind);
  }
  return text;
}

}  // namespace kzm::cli
