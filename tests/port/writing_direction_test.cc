#include "port/writing_direction.h"

#include <gtest/gtest.h>
#include <string>

namespace kzm::port {
namespace {

using Letter = WritingDirection::Letter;

TEST(WritingDirection, IsThatOfTheFirstLetter) {
  struct Case {
    const char* why;
    std::string text;
    Letter letter;
    bool hasMark;
    bool hasArabicDigits;
  };
  // clang-format off
  const Case cases[] = {
      {"no text",                     "",                            Letter::none,        false, false},
      {"digits have none",            "42",                          Letter::none,        false, false},
      {"after digits",                "19.7 GB",                     Letter::leftToRight, false, false},
      {"Hebrew",                      "19.7 שלום",                   Letter::rightToLeft, false, false},
      {"Arabic",                      "م",                           Letter::rightToLeft, false, false},
      {"Arabic digits",               "٤٢",                          Letter::none,        false, true},
      {"Persian digits are European", "۴۲",                          Letter::none,        false, false},
      {"Arabic digits and letter",    "٤٢ م",                        Letter::rightToLeft, false, true},
      {"left-to-right mark",          "\u200E42",                    Letter::none,        true,  false},
      {"right-to-left mark",          "\u200F42 GB",                 Letter::leftToRight, true,  false},
      {"Arabic letter mark",          "\u061C٤٢ م",                  Letter::rightToLeft, true,  true},
      {"one mark after another",      "\u200F\u200E42 م",            Letter::rightToLeft, true,  false},
      {"what comes after the letter", "a\u200F٤",                    Letter::leftToRight, false, false},
      {"the last byte looked at",     std::string(1023, ' ') + "a",  Letter::leftToRight, false, false},
      {"one byte too far",            std::string(1024, ' ') + "a",  Letter::none,        false, false},
      {"no UTF-8",                    "\xFF\xFE",                    Letter::none,        false, false},
  };
  // clang-format on
  for (const Case& c : cases) {
    const WritingDirection direction = writingDirectionOf(c.text);
    EXPECT_EQ(direction.letter, c.letter) << c.why;
    EXPECT_EQ(direction.hasMark, c.hasMark) << c.why;
    EXPECT_EQ(direction.hasArabicDigits, c.hasArabicDigits) << c.why;
  }
}

}  // namespace
}  // namespace kzm::port
