// What is reported of the languages.
#include "tools/strings/report.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "tests/tools/strings/tables.h"

namespace kzm::strings {
namespace {

// What is not in Unicode's data of any version.
constexpr const char* kGerman = R"(/* source: own; reviewer: A */
"Units.Sensors.Off" = "Aus";
"Units.Weather.%@ km" = "%@ km"; /* source: symbol; reviewer: none */
"Units.Weather.%@ Days" = "%@ Sonnen";
)";

Catalog catalog() {
  const tests::Rows english{
      {"Units.Sensors.Off", "Off"}, {"Units.Weather.%@ km", "%@ km"}, {"Units.Weather.%@ Days", "%@ Days"}};
  return {{tests::table("en", english), parseTable("de.lproj/T.strings", kGerman)}};
}

TEST(Report, CountsTextsForEachLanguage) {
  std::ostringstream out;
  reportAll(out, catalog());
  EXPECT_EQ(out.str(),
            "language    table         translated     English    reviewed   differing  sources\n"
            "en          T                      3           3           0           1  own 3\n"
            "de          T                      3           1           2           1  own 2, symbol 1\n");
}

TEST(Report, NamesSourceAndReviewerOfEachText) {
  std::ostringstream out;
  reportTexts(out, catalog().tables[1]);
  EXPECT_EQ(out.str(),
            "de.lproj/T.strings:2: \"Units.Sensors.Off\" = \"Aus\"  source: own; reviewer: A\n"
            "de.lproj/T.strings:3: \"Units.Weather.%@ km\" = \"%@ km\"  source: symbol; reviewer: none\n"
            "de.lproj/T.strings:4: \"Units.Weather.%@ Days\" = \"%@ Sonnen\"  source: own; reviewer: A; differs from "
            "Unicode's data\n");
}

}  // namespace
}  // namespace kzm::strings
