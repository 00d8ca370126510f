#include "cli/format/families.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string_view>
#include <utility>

#include <KZMUtilities/sensors.h>

#include "catalogue/callables.h"
#include "core/rows.h"

namespace kzm::cli {
namespace {

TEST(Families, EverySensorKindHasItsRow) {
  const auto isSensor = [](const Family& family) { return family.name.starts_with("sensor "); };
  EXPECT_EQ(static_cast<std::size_t>(std::ranges::count_if(families(), isSensor)),
            core::countNamed<SensorType::Kind>());
}

TEST(Families, EveryCallThatFormatsANumberHasItsRow) {
  const auto formats = [](const catalogue::Callable& callable) {
    return callable.name.starts_with("KZMUtilitiesFormat") && !callable.name.ends_with("WithAttributes") &&
           callable.name != "KZMUtilitiesFormatSensor";
  };
  const auto isOther = [](const Family& family) { return !family.name.starts_with("sensor "); };
  EXPECT_EQ(std::ranges::count_if(families(), isOther), std::ranges::count_if(catalogue::callables(), formats));
}

}  // namespace
}  // namespace kzm::cli
