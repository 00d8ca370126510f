// PO files, written and read.
#include "tools/strings/po.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "tools/strings/fault.h"

namespace kzm::strings {
namespace {

Message message() {
  Message message;
  message.comments = {"inches", "at most 6 cells"};
  message.references = {"weather/weather_text.cc"};
  message.context = "Units.Weather.%@\"";
  message.original = "%@\"";
  message.translation = "%@ \\in\n";
  return message;
}

constexpr const char* kWritten = R"(#. inches
#. at most 6 cells
#: weather/weather_text.cc
msgctxt "Units.Weather.%@\""
msgid "%@\""
msgstr ""
"%@ \\in\n"

)";

TEST(Po, MessagesAreWrittenAsGettextDoes) {
  std::ostringstream out;
  writeMessage(out, message());
  EXPECT_EQ(out.str(), kWritten);
}

TEST(Po, WhatIsWrittenIsRead) {
  const auto read = readMessages("de.po", kWritten);
  ASSERT_EQ(read.size(), 1U);
  EXPECT_EQ(read[0].context, message().context);
  EXPECT_EQ(read[0].original, message().original);
  EXPECT_EQ(read[0].translation, message().translation);
  EXPECT_EQ(read[0].line, 5U);
  EXPECT_FALSE(read[0].isFuzzy);
}

TEST(Po, AMessageThatNeedsAnotherLookIsWrittenSo) {
  Message uncertain = message();
  uncertain.isFuzzy = true;
  std::ostringstream out;
  writeMessage(out, uncertain);
  const auto read = readMessages("de.po", out.str());
  ASSERT_EQ(read.size(), 1U);
  EXPECT_TRUE(read[0].isFuzzy);
}

TEST(Po, FilesOfOtherEditorsAreReadToo) {
  const auto read =
      readMessages("de.po",
                   "\uFEFF# A translator's remark\r\nmsgid \"\"\r\nmsgstr \"\"\r\n\"Language: de\\n\"\r\n"
                   "\"Last-Translator: A B <a@b.example>\\n\"\r\n\r\n"
                   "#, fuzzy, no-wrap\n#| msgid \"old\"\nmsgctxt \"c\"\nmsgid \"a\"\n\"b\"\nmsgstr \"x\" \n\"y\"\n"
                   "msgctxt \"d\"\nmsgid \"a\"\nmsgstr \"\"\n#~ msgid \"gone\"\n#~ msgstr \"weg\"");
  ASSERT_EQ(read.size(), 3U);
  EXPECT_EQ(headerMember(read[0], "Language"), "de");
  EXPECT_EQ(headerMember(read[0], "Last-Translator"), "A B <a@b.example>");
  EXPECT_EQ(headerMember(read[0], "Team"), "");
  EXPECT_EQ(read[1].context, "c");
  EXPECT_EQ(read[1].original, "ab");
  EXPECT_EQ(read[1].translation, "xy");
  EXPECT_TRUE(read[1].isFuzzy);
  EXPECT_EQ(read[2].context, "d");
  EXPECT_FALSE(read[2].isFuzzy);
}

struct Unread {
  const char* why;
  const char* content;
  const char* fault;
};

constexpr Unread kUnread[] = {
    {"no quotes", "msgid a\nmsgstr \"b\"", "1: expected a text in double quotes"},
    {"no end of the quotes", "msgid \"a\nmsgstr \"b\"", "1: expected a text in double quotes"},
    {"quotes in a text", "msgid \"a\"b\"\nmsgstr \"b\"", "1: a double quote within a text"},
    {"an unknown escape", "msgid \"a\\q\"\nmsgstr \"b\"", "1: an escape that is none of \\n \\t \\r \\\" \\\\"},
    {"an escape cut off", "msgid \"a\\\"\nmsgstr \"b\"", "1: an escape that is none of \\n \\t \\r \\\" \\\\"},
    {"plurals", "msgid \"a\"\nmsgid_plural \"b\"", "2: expected msgctxt, msgid, msgstr or a comment"},
    {"no translation", "msgid \"a\"\n", "1: a msgid without its msgstr"},
    {"no original", "msgstr \"a\"\n", "1: a msgstr without its msgid"},
    {"two translations", "msgid \"a\"\nmsgstr \"b\"\nmsgstr \"c\"", "3: a msgstr without its msgid"},
    {"a text of nothing", "\"a\"\n", "1: a text without msgctxt, msgid or msgstr"},
    {"something else", "\nhello\n", "2: expected msgctxt, msgid, msgstr or a comment"},
    {"another encoding", "\n\nmsgid \"\xE4\"", "3: not valid UTF-8"},
};

TEST(Po, WhatCannotBeReadIsReportedWithItsLine) {
  for (const Unread& test : kUnread) {
    try {
      (void)readMessages("de.po", test.content);
      ADD_FAILURE() << test.why;
    } catch (const Unreadable& unreadable) {
      EXPECT_EQ(unreadable.what(), std::string("de.po:") + test.fault) << test.why;
    }
  }
}

}  // namespace
}  // namespace kzm::strings
