// Readings in lines of any direction: what is seen on the screen, by ICU's bidirectional algorithm.
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <unicode/ubidi.h>
#include <unicode/unistr.h>
#include <vector>

#include <KZMUtilities/text.h>

#include "tests/support/runs.h"

namespace kzm {
namespace {

/// The line as it is seen on the screen from left to right, so that Hebrew and Arabic words are spelled backward.
std::string seen(const std::string& line, UBiDiLevel direction) {
  const icu::UnicodeString text = icu::UnicodeString::fromUTF8(line);
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UBiDi, void (*)(UBiDi*)> bidi(ubidi_open(), ubidi_close);
  ubidi_setPara(bidi.get(), text.getBuffer(), text.length(), direction, nullptr, &status);
  icu::UnicodeString screen;
  UChar* room = screen.getBuffer(text.length());
  const std::int32_t length =
      ubidi_writeReordered(bidi.get(), room, text.length(), UBIDI_DO_MIRRORING | UBIDI_REMOVE_BIDI_CONTROLS, &status);
  screen.releaseBuffer(length);
  EXPECT_TRUE(U_SUCCESS(status));
  screen.findAndReplace(u"\u061C", u"");  // which ICU leaves, and no screen shows
  std::string utf8;
  return screen.toUTF8String(utf8);
}

struct Line {
  const char* why;
  std::vector<std::string> readings;
  std::string between;
  const char* rightToLeft;  // what is seen in a line from right to left
  const char* leftToRight;
};

const Line kLines[] = {
    {"Hebrew", {"19.7 GB", "83.1 GB"}, " / ", "83.1 GB / 19.7 GB", "19.7 GB / 83.1 GB"},
    {"Arabic",
     {"١٩٫٧ غيغابايت", "٨٣٫١ غيغابايت"},
     " / ",
     "تياباغيغ ٨٣٫١ / تياباغيغ ١٩٫٧",
     "تياباغيغ ١٩٫٧ / تياباغيغ ٨٣٫١"},
    {"Persian",
     {"۱۹٫۷ گیگابایت", "۸۳٫۱ گیگابایت"},
     " / ",
     "تیاباگیگ ۸۳٫۱ / تیاباگیگ ۱۹٫۷",
     "تیاباگیگ ۱۹٫۷ / تیاباگیگ ۸۳٫۱"},
    {"Hebrew rates",
     {"↓", "1.4 MB/שנ׳", "↑", "2.1 MB/שנ׳"},
     " ",
     "2.1 MB/׳נש ↑ 1.4 MB/׳נש ↓",
     "↓ 1.4 MB/׳נש ↑ 2.1 MB/׳נש"},
    {"Arabic rates",
     {"↓", "١٫٤ ميغابايت/ث", "↑", "٢٫١ ميغابايت/ث"},
     " ",
     "ث/تياباغيم ٢٫١ ↑ ث/تياباغيم ١٫٤ ↓",
     "↓ ث/تياباغيم ١٫٤ ↑ ث/تياباغيم ٢٫١"},
    {"Persian rates",
     {"↓", "۱٫۴ مگابایت/ثانیه", "↑", "۲٫۱ مگابایت/ثانیه"},
     " ",
     "هیناث/تیاباگم ۲٫۱ ↑ هیناث/تیاباگم ۱٫۴ ↓",
     "↓ هیناث/تیاباگم ۱٫۴ ↑ هیناث/تیاباگم ۲٫۱"},
    {"Hebrew, below zero", {"BAT0", "\u200E-50 W"}, ": ", "-50 W :BAT0", "BAT0: -50 W"},
    {"Hebrew, below zero, with a Hebrew unit", {"BAT0", "\u200E-36 קמ״ש"}, ": ", "ש״מק -36 :BAT0", "BAT0: ש״מק -36"},
    {"Arabic, below zero", {"BAT0", "\u061C-٥٠ واط"}, ": ", "طاو ٥٠- :BAT0", "BAT0: طاو ٥٠-"},
    {"Persian, below zero", {"BAT0", "\u200E\u2212۵۰ وات"}, ": ", "تاو −۵۰ :BAT0", "BAT0: تاو −۵۰"},
    {"Hebrew percentage", {"זיכרון", "57 %"}, ": ", "57 % :ןורכיז", "ןורכיז: 57 %"},
    {"Arabic percentage", {"الذاكرة", "٥٧ %"}, ": ", "% ٥٧ :ةركاذلا", "ةركاذلا: % ٥٧"},
    {"Persian percentage", {"حافظه", "۵۷ %"}, ": ", "۵۷ % :هظفاح", "هظفاح: ۵۷ %"},
};

TEST(Isolated, ReadingsKeepTheirOrderOnTheScreen) {
  for (const Line& line : kLines) {
    std::string text;
    for (const std::string& reading : line.readings) text += (text.empty() ? "" : line.between) + isolated(reading);
    EXPECT_EQ(seen(text, UBIDI_RTL), line.rightToLeft) << line.why;
    EXPECT_EQ(seen(text, UBIDI_LTR), line.leftToRight) << line.why;
  }
}

TEST(Isolated, WithoutItReadingsFallApart) {
  EXPECT_EQ(seen("19.7 GB / 83.1 GB", UBIDI_RTL), "GB / 83.1 GB 19.7");
  EXPECT_EQ(seen("BAT0: \u200E-36 קמ״ש", UBIDI_RTL), "ש״מק BAT0: -36");
  EXPECT_EQ(seen(isolated("19.7 GB") + " / " + isolated("83.1 GB"), UBIDI_RTL), "83.1 GB / 19.7 GB");
}

struct MarksCase {
  const char* why;
  std::string_view text;
  std::string_view isolated;
};
constexpr MarksCase kMarks[] = {
    {"a reading", "57%", "\u206857%\u2069"},
    {"nothing", "", ""},
    {"isolated already", "\u206857%\u2069", "\u206857%\u2069"},
    {"isolated with a direction", "\u206757%\u2069", "\u206757%\u2069"},
    {"two isolates", "\u20681\u2069/\u20682\u2069", "\u2068\u20681\u2069/\u20682\u2069\u2069"},
    {"an isolate in one", "\u20681\u20672\u2069\u2069", "\u20681\u20672\u2069\u2069"},
    {"without its end", "\u20681\u20672\u2069", "\u2068\u20681\u20672\u2069\u2069\u2069"},
    {"without its beginning", "1\u2069 2", "\u2068\u20681\u2069 2\u2069"},
    {"a mark cut short", "\xE2\x81", "\u2068\xE2\x81\u2069"},
};

TEST(Isolated, MarksAreAddedWhereTheyAreMissing) {
  for (const MarksCase& test : kMarks) EXPECT_EQ(isolated(test.text), test.isolated) << test.why;
}

TEST(Isolated, MarksHaveTheAttributesOfTheirNeighbors) {
  AttributedString reading("57", "bold");
  EXPECT_EQ(tests::runsOf(isolated(reading)), (tests::Runs{{"\u206857\u2069", "bold"}}));
  reading.append(AttributedString("%", "gray"));
  EXPECT_EQ(tests::runsOf(isolated(reading)), (tests::Runs{{"\u206857", "bold"}, {"%\u2069", "gray"}}));
  EXPECT_EQ(isolated(AttributedString()), AttributedString());
}

}  // namespace
}  // namespace kzm
