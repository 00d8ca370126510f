#include "core/template.h"

#include <gtest/gtest.h>

namespace kzm::core {
namespace {

TEST(Template, FillsInTheNumber) {
  struct Case {
    const char* why;
    const char* text;
    const char* number;
    const char* filled;
    const char* composed;
  };
  const Case cases[] = {
      {"the ordinary case", "%@ GB", "5", "5 GB", "5 GB"},
      {"the unit first", "GB %@", "5", "GB 5", "GB 5"},
      {"the number alone", "%@", "5", "5", "5"},
      {"a numbered place", "%1$@ Go", "5", "5 Go", "%1$@ Go"},
      {"another numbered place is text", "%2$@", "5", "%2$@", "%2$@"},
      {"two signs are one when formatted", "%@%%", "5", "5%", "5%%"},
      {"a lone sign at the end stays", "%@%", "5", "5%", "5%"},
      {"behind a blank too", "%@ %", "5", "5 %", "5 %"},
      {"a second place stays text", "%@ of %@", "5", "5 of %@", "5 of %@"},
      {"also a second place of another form", "%@ %1$@", "5", "5 %1$@", "5 %1$@"},
      {"directives are copied", "%d%s%n %@", "5", "%d%s%n 5", "%d%s%n 5"},
      {"the number is not scanned again", "%@ x", "%@%%%s", "%@%%%s x", "%@%%%s x"},
      {"no place: the text alone", "Off", "5", "Off", "Off"},
      {"no place, two signs", "a%%b", "5", "a%b", "a%%b"},
      {"a doubled sign hides the place", "%%@", "5", "%@", "%5"},
      {"an empty text", "", "5", "", ""},
      {"an empty number", "<%@>", "", "<>", "<>"},
      {"other scripts", "%@ ГБ", "٥", "٥ ГБ", "٥ ГБ"},
  };
  for (const Case& c : cases) {
    const Template text(c.text);
    EXPECT_EQ(text.text(), c.text);
    EXPECT_EQ(text.filled(c.number), c.filled) << c.why;
    EXPECT_EQ(text.composed(c.number, "main", "units").text(), c.composed) << c.why;
  }
}

TEST(Template, ComposesNumberAndUnitInTheirAttributes) {
  using Runs = std::vector<AttributedString::Run>;
  EXPECT_EQ(Template("%@ GB").composed("5", "main", "units").runs(), (Runs{{"5", "main"}, {" GB", "units"}}));
  EXPECT_EQ(Template("GB %@").composed("5", "main", "units").runs(), (Runs{{"GB ", "units"}, {"5", "main"}}));
  EXPECT_EQ(Template("%@ GB").composed("5", nullptr, nullptr).runs(), (Runs{{"5 GB", nullptr}}));
  EXPECT_EQ(Template("%@ GB").composed("5", "same", "same").runs(), (Runs{{"5 GB", "same"}}));
  EXPECT_EQ(Template("Off").composed("5", "main", "units").runs(), (Runs{{"Off", "units"}}));
}

TEST(Template, LongTextsAreNoDifferent) {
  const std::string unit(100000, 'u');
  EXPECT_EQ(Template("%@" + unit).filled("5"), "5" + unit);
}

}  // namespace
}  // namespace kzm::core
