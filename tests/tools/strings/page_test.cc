// The page of typical readings, kept in the tree.
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <unicode/uversion.h>

#include "tests/localization/command.h"

namespace kzm::strings {
namespace {

constexpr const char* kPage = "env -i LANG=de_DE TZ=Asia/Tokyo '" KZM_STRINGS_PAGE "' ";

TEST(Page, IsTheOneInTheDocuments) {
  if (U_ICU_VERSION_MAJOR_NUM != 72) GTEST_SKIP() << "the page has the number styles and the names of ICU 72";
  std::ifstream file(KZM_SOURCES "/docs/readings.txt");
  const std::string kept{std::istreambuf_iterator<char>(file), {}};
  const tests::Outcome outcome = tests::run(kPage);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.output, kept) << "after a change on purpose: ./dev strings page > docs/readings.txt";
}

TEST(Page, MayBeOfOneLanguage) {
  EXPECT_TRUE(
      tests::run(kPage + std::string("he")).output.starts_with("עברית (he)\n  network   \u20681.43 MB/שנ׳\u2069 | "));
  const tests::Outcome unknown = tests::run(kPage + std::string("xx"));
  EXPECT_EQ(unknown.exitCode, 1);
  EXPECT_EQ(unknown.output, "kzm_strings_page: there is no language \"xx\"\n");
}

}  // namespace
}  // namespace kzm::strings
