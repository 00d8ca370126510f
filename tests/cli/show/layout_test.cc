#include "cli/show/layout.h"

#include <cmath>
#include <gtest/gtest.h>

#include <KZMUtilities/display_width.h>

namespace kzm::cli {
namespace {

using Lines = std::vector<std::string>;

Cell cell(const char* text) { return {{text}}; }

const Section kNetwork{"Network",
                       {"received", "sent"},
                       {{"lo", {cell("0 KB/s"), cell("–")}}, {"eth0", {cell("11.4 MB/s"), cell("7 KB/s")}}}};

TEST(Layout, NamesAtTheLeftNumbersAtTheRight) {
  EXPECT_EQ(laidOut({kNetwork}, {}), (Lines{
                                         "Network                     received          sent",
                                         "  lo                          0 KB/s             –",
                                         "  eth0                     11.4 MB/s        7 KB/s",
                                     }));
}

TEST(Layout, LinesWithTextFromRightToLeftAreIsolatedCellByCell) {
  const Section memory{
      "זיכרון", {"used"}, {{"main", {{{"19.7", Emphasis::strong}, {" GB"}}}}, {"ראשי", {cell("19.7 GB")}}}};
  EXPECT_EQ(laidOut({memory}, {}), (Lines{
                                       "\u2068זיכרון\u2069                          \u2068used\u2069",
                                       "  main                       19.7 GB",
                                       "  \u2068ראשי\u2069                       \u206819.7 GB\u2069",
                                   }));
}

TEST(Layout, SectionsShareOneGridAndEmptyOnesAreLeftOut) {
  const Section disks{"Disk activity", {"read", "written"}, {{"sda", {cell("123,456,789 GB/s"), cell("-")}}}};
  const Section fans{"Fans", {}, {}};
  EXPECT_EQ(laidOut({kNetwork, fans, disks}, {}), (Lines{
                                                      "Network                         received          sent",
                                                      "  lo                              0 KB/s             –",
                                                      "  eth0                         11.4 MB/s        7 KB/s",
                                                      "",
                                                      "Disk activity                       read       written",
                                                      "  sda                   123,456,789 GB/s             -",
                                                  }));
  EXPECT_EQ(laidOut({}, {}), Lines{});
  EXPECT_EQ(laidOut({fans}, {}), Lines{});
}

TEST(Layout, AColumnWithNothingInItTakesNoRoom) {
  const Section section{"Load", {}, {{"processor", {cell("50%"), {}, {}, cell("####")}}}};
  EXPECT_EQ(laidOut({section}, {})[1], "  processor                      50%          ####");
}

TEST(Layout, WideNamesAndOtherScriptsStayAligned) {
  const Section section{
      "Volumes",
      {},
      {{"/mnt/网络", {cell("٤٢ GB")}}, {"/a/very/long/directory/name/that/goes/on/and/on", {cell("1 GB")}}}};
  const Lines lines = laidOut({section}, {});
  EXPECT_EQ(lines[1], "  \u2068/mnt/网络\u2069                                      \u2068٤٢ GB\u2069");
  EXPECT_EQ(lines[2], "  /a/very/long/directory/name/that/goes…          1 GB");
  EXPECT_EQ(displayWidth(lines[1]), displayWidth(lines[2]));
}

TEST(Layout, NarrowTerminalsCutTheLines) {
  for (const std::size_t columns : {1U, 2U, 5U, 30U, 49U}) {
    for (const std::string& line : laidOut({kNetwork}, {.columns = columns})) {
      EXPECT_LE(displayWidth(line), columns) << line;
    }
  }
  EXPECT_EQ(laidOut({kNetwork}, {.columns = 5}), (Lines{"Netw…", "  lo…", "  et…"}));
  EXPECT_EQ(laidOut({kNetwork}, {.columns = 50}), laidOut({kNetwork}, {}));
}

TEST(Layout, StylesAreTheTerminals) {
  const Section section{"Load", {"now"}, {{"processor", {{{"42", Emphasis::strong}, {" %"}}}}}};
  EXPECT_EQ(laidOut({section}, {.styles = true}),
            (Lines{"\x1b[1mLoad\x1b[0m                             \x1b[2mnow\x1b[0m",
                   "  processor                     \x1b[1m42\x1b[0m %"}));
  EXPECT_EQ(laidOut({section}, {})[1], "  processor                     42 %");
}

TEST(Layout, BarsAreFilledByTheNearestHalf) {
  struct Case {
    double part;
    const char* full;
  };
  const Case cases[] = {
      {0.0, ""},
      {0.012, ""},
      {0.013, "▌"},
      {0.026, "▌"},
      {0.05, "█"},
      {-1.0, ""},
      {NAN, ""},
      {0.5, "██████████"},
      {7.0, "████████████████████"},
      {1.0, "████████████████████"},
      {INFINITY, "████████████████████"},
  };
  for (const Case& c : cases) {
    const Cell cells = bar(c.part);
    EXPECT_EQ(cells[0].text, c.full) << c.part;
    EXPECT_EQ(displayWidth(cells[0].text) + displayWidth(cells[1].text), kBarColumns) << c.part;
  }
}

}  // namespace
}  // namespace kzm::cli
