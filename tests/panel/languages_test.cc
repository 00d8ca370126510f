// Every language can be drawn: a font has all its characters, and its words have room.
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/drawing.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/resources.h>

#include "cli/words.h"
#include "examples/panel/heading.h"
#include "examples/panel/layout.h"
#include "examples/panel/lettering.h"
#include "examples/panel/texts.h"

namespace kzm::panel {
namespace {

std::span<const StringTable> tables() { return bundleWithIdentifier(kBundleIdentifier)->tables; }

class PanelLanguages : public testing::Test {
 private:
  Image nowhere_{Size{1, 1}};
  Image::Focus focus_{nowhere_};
};

int missingGlyphs(const AttributedString& text) { return Line(text, false).missingGlyphs(); }

TEST_F(PanelLanguages, NoTextLacksAGlyph) {
  for (const StringTable& table : tables()) {
    for (std::string_view texts = table.texts; !texts.empty(); texts.remove_prefix(texts.find('\0') + 1)) {
      const std::string text(texts.substr(0, texts.find('\0')));
      EXPECT_EQ(missingGlyphs(AttributedString(text)), 0) << table.language << ": " << text;
    }
  }
}

TEST_F(PanelLanguages, NoNumberAndNoDateLacksAGlyph) {
  for (const StringTable& table : tables()) {
    setCurrentLocale(table.language);
    const Heading heading = headingAt(1801667040.0);
    EXPECT_EQ(missingGlyphs(heading.clock) + missingGlyphs(heading.day), 0) << table.language;
    EXPECT_EQ(missingGlyphs(memoryText(valueStyles(), -12345678901234.0)), 0) << table.language;
  }
}

// The labels at the start of a row, and the one at its end.
struct Labels {
  std::vector<const char*> start;
  const char* end;
};

double widthOf(const Labels& labels) {
  std::vector<std::string> words;
  for (const char* key : labels.start) words.push_back(cli::word(key));
  return Line(labelText(words), false).width() + kTextGap + Line(labelText({cli::word(labels.end)}), false).width();
}

TEST_F(PanelLanguages, LabelsHaveRoom) {
  const Labels kLabels[] = {
      {{"Topics.Network"}, "Columns.received"},
      {{"Topics.Network"}, "Columns.sent"},
      {{"Topics.Disk activity"}, "Columns.read"},
      {{"Topics.Disk activity"}, "Columns.written"},
      {{"Topics.Memory", "Columns.used"}, "Columns.free"},
      {{"Topics.Volumes", "Columns.used"}, "Columns.free"},
  };
  for (const StringTable& table : tables()) {
    const std::string language(table.language);
    KZMLocalizationSetLanguages({&language, 1});
    for (const Labels& labels : kLabels) EXPECT_LE(widthOf(labels), kTextWidth) << language << ' ' << labels.start[0];
  }
}

}  // namespace
}  // namespace kzm::panel
