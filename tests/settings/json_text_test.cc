#include "settings/json_text.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kzm::settings {
namespace {

TEST(JsonText, StringsAreQuoted) {
  struct Case {
    const char* why;
    std::string_view text;
    const char* json;
  };
  const Case cases[] = {
      {"empty", "", R"("")"},
      {"a path", "Weather.Global.Units.Rain", R"("Weather.Global.Units.Rain")"},
      {"quotation marks", R"(a "b")", R"("a \"b\"")"},
      {"a backslash", R"(a\b)", R"("a\\b")"},
      {"an end of line", "a\nb", R"("a\nb")"},
      {"a control character", "\x01", R"("\u0001")"},
      {"letters beyond ASCII", "°é中", R"("°é中")"},
  };
  for (const Case& c : cases) EXPECT_EQ(jsonString(c.text), c.json) << c.why;
  EXPECT_THROW(static_cast<void>(jsonString("\xFF")), nlohmann::json::type_error);
}

TEST(JsonText, DoublesReadBackAsDoubles) {
  struct Case {
    double number;
    const char* json;
  };
  const Case cases[] = {
      {0.0, "0.0"},       {-0.0, "-0.0"},  {1.0, "1.0"},
      {0.1, "0.1"},       {-2.5, "-2.5"},  {1e300, "1e+300"},
      {5e-324, "5e-324"}, {1e-7, "1e-07"}, {0.30000000000000004, "0.30000000000000004"},
  };
  for (const Case& c : cases) EXPECT_EQ(shortest(c.number), c.json) << c.number;
}

TEST(JsonText, EachPartIsOnALineOfItsOwn) {
  JsonText text(0);
  text.open('{');
  text.key("a");
  text.add("1");
  text.key("b");
  text.open('[');
  text.add("2");
  text.add("3");
  text.close(']');
  text.close('}');
  EXPECT_EQ(text.take(), R"({
  "a": 1,
  "b": [
    2,
    3
  ]
})");
}

TEST(JsonText, EmptyContainersAreOnOneLine) {
  JsonText text(0);
  text.open('{');
  text.key("list");
  text.open('[');
  text.close(']');
  text.key("object");
  text.open('{');
  text.close('}');
  text.close('}');
  EXPECT_EQ(text.take(), R"({
  "list": [],
  "object": {}
})");
}

TEST(JsonText, APartOfAnotherTextIsIndentedAsThere) {
  JsonText text(1);
  text.open('{');
  text.key("a");
  text.add("1");
  text.close('}');
  EXPECT_EQ(text.take(), R"({
    "a": 1
  })");
}

TEST(JsonText, APartAloneHasNoLine) {
  JsonText text(3);
  text.add("true");
  EXPECT_EQ(text.take(), "true");
}

}  // namespace
}  // namespace kzm::settings
