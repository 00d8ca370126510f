// How a table's file is read, whatever somebody puts into it.
#include "tools/strings/table.h"

#include <gtest/gtest.h>
#include <string>

namespace kzm::strings {
namespace {

Table read(std::string content) { return parseTable("de.lproj/T.strings", std::move(content)); }

/// What is reported of the content; nothing when it can be read.
std::string reported(std::string content) {
  try {
    read(std::move(content));
    return "";
  } catch (const Unreadable& unreadable) {
    return unreadable.what();
  }
}

using namespace std::string_literals;

struct Unread {
  const char* why;
  std::string content;
  const char* fault;
};

const Unread kUnread[] = {
    {"a stray byte", "\"k\" = \"%@ \xFF\";", "1: not valid UTF-8"},
    {"a cut sequence", "\n\n/* \xC3", "3: not valid UTF-8"},
    {"an overlong sequence", "/* \xC0\xAF */", "1: not valid UTF-8"},
    {"an overlong sequence of three", "/* \xE0\x80\xAF */", "1: not valid UTF-8"},
    {"an overlong sequence of four", "/* \xF0\x80\x80\xAF */", "1: not valid UTF-8"},
    {"a surrogate", "/* \xED\xA0\x80 */", "1: not valid UTF-8"},
    {"beyond the last character", "/* \xF4\x90\x80\x80 */", "1: not valid UTF-8"},
    {"a byte order mark", "\xEF\xBB\xBF/* */", "1: a byte order mark"},
    {"UTF-16", "\xFF\xFE\"\0k\0"s, "1: not valid UTF-8"},
    {"a zero byte", "\0"s, "1: expected a key in double quotes"},
    {"a zero byte in a text", "\"k\" = \"A\0\";"s, "1: a quoted text ends on its line and holds no control character"},
    {"no quotes", "k = \"Aus\";", "1: expected a key in double quotes"},
    {"no equals sign", "\n\"k\" \"Aus\";", "2: expected ="},
    {"no text", "\"k\" = ;", "1: expected a text in double quotes"},
    {"no semicolon", "\"k\" = \"Aus\"\n\"l\" = \"B\";", "2: expected ;"},
    {"no end of the quotes", "\"k", "1: the quoted text has no end"},
    {"a backslash at the end", "\"k\\", "1: only \\\" and \\\\ are escapes"},
    {"quotes over two lines", "\"k\" = \"A\nus\";", "1: a quoted text ends on its line and holds no control character"},
    {"quotes over two Windows lines", "\"k\" = \"A\r\nus\";",
     "1: a quoted text ends on its line and holds no control character"},
    {"a tabulator", "\"k\" = \"A\tus\";", "1: a quoted text ends on its line and holds no control character"},
    {"an escape that is none", "\"k\" = \"Aus\\n\";", "1: only \\\" and \\\\ are escapes"},
    {"a comment without an end", "\n/* Aus", "2: the comment has no end"},
    {"a comment that is only begun", "/*/", "1: the comment has no end"},
    {"half a comment", "/ Aus */", "1: expected a key in double quotes"},
    {"a comment within a row", "\"k\" /* = */ = \"A\";", "1: expected ="},
    {"a note between rows", "\"k\" = \"A\";\n/* source: own */",
     "2: a note on the source or the reviewer goes at the head of the table or on the line of its row"},
    {"one line of a megabyte", std::string(1 << 20, 'x'), "1: expected a key in double quotes"},
    {"a million lines", std::string(1 << 20, '\n') + "x", "1048577: expected a key in double quotes"},
};

TEST(Table, WhatCannotBeReadIsReportedWithItsLine) {
  for (const Unread& test : kUnread) {
    EXPECT_EQ(reported(test.content), std::string("de.lproj/T.strings:") + test.fault) << test.why;
  }
}

struct Read {
  const char* why;
  std::string content;
  const char* text;  // of its only row
};

const Read kRead[] = {
    {"the usual form", "\"k\" = \"Aus\";\n", "Aus"},
    {"no line end at the end", "\"k\" = \"Aus\";", "Aus"},
    {"Windows line ends", "/* A */\r\n\r\n\"k\" = \"Aus\";\r\n", "Aus"},
    {"no spaces", "\"k\"=\"Aus\";", "Aus"},
    {"over several lines", "\n\"k\"\n =\t\"Aus\"\n;", "Aus"},
    {"escapes", R"("k" = "a\"b\\c";)", "a\"b\\c"},
    {"a comment's marks in a text", "\"k\" = \"/* A */\";", "/* A */"},
    {"quotes in a comment", "/* \"x\" = \"y\"; */ \"k\" = \"Aus\";", "Aus"},
    {"a text of a megabyte", "\"k\" = \"" + std::string(1 << 20, 'x') + "\";", nullptr},
};

TEST(Table, SpacesAndLineEndsDoNotMatter) {
  for (const Read& test : kRead) {
    const Table table = read(test.content);
    ASSERT_EQ(table.entries.size(), 1U) << test.why;
    EXPECT_EQ(table.entries[0].key, "k") << test.why;
    EXPECT_EQ(table.entries[0].text, test.text == nullptr ? std::string(1 << 20, 'x') : test.text) << test.why;
  }
}

TEST(Table, AnEmptyFileHasNoRows) {
  for (const char* content : {"", "\n", "/* nothing */", "/**/"}) EXPECT_TRUE(read(content).entries.empty()) << content;
}

constexpr const char* kWhole = R"(/* German. */
/* source: CLDR 42; reviewer: Anna */

/* Network: bits
   and bytes */
/* gigabytes */
/* and more */
"a" = "A";
"b" = "B"; /* source: own */
/* kilobytes */
"c" = "C"; /* another comment */

"d" = "D"; /* source: symbol; reviewer: none */
)";

TEST(Table, CommentsAreHeadingsHintsAndNotes) {
  const Table table = read(kWhole);
  ASSERT_EQ(table.entries.size(), 4U);
  EXPECT_EQ(table.language, "de");
  EXPECT_EQ(table.name, "T");
  struct {
    const char* section;
    const char* hint;
    Note note;
    std::size_t line;
  } const expected[] = {
      {"Network: bits and bytes", "gigabytes\nand more", {"CLDR 42", "Anna"}, 8},
      {"Network: bits and bytes", "", {"own", "Anna"}, 9},
      {"Network: bits and bytes", "kilobytes", {"CLDR 42", "Anna"}, 11},
      {"Network: bits and bytes", "", {"symbol", "none"}, 13},
  };
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const Entry& entry = table.entries[i];
    EXPECT_EQ(entry.section, expected[i].section) << entry.key;
    EXPECT_EQ(entry.hint, expected[i].hint) << entry.key;
    EXPECT_EQ(noteOf(table, entry), expected[i].note) << entry.key;
    EXPECT_EQ(entry.line, expected[i].line) << entry.key;
  }
  const Span row = table.entries[1].row;
  EXPECT_EQ(table.content.substr(row.begin, row.end - row.begin), "\"b\" = \"B\"; /* source: own */");
}

TEST(Table, FilesAreNamedByLanguageAndTable) {
  for (const char* path : {"de/T.strings", "de.lproj/T.txt", "T.strings"}) {
    EXPECT_THROW((void)parseTable(path, ""), Unreadable) << path;
  }
  EXPECT_THROW((void)readTable("no/such.lproj/T.strings"), Unreadable);
}

struct NoteCase {
  const char* comment;
  bool isNote;
  Note note;
};

const NoteCase kNotes[] = {
    {"source: own", true, {"own", ""}},
    {"source: translator A B; reviewer: C D", true, {"translator A B", "C D"}},
    {"reviewer: none", true, {"", "none"}},
    {"source:own", false, {}},
    {"the source: own", false, {}},
    {"source: own; and more", false, {}},
    {"", false, {}},
};

TEST(Note, IsAListOfMembers) {
  for (const NoteCase& test : kNotes) {
    EXPECT_EQ(parseNote(test.comment), test.isNote ? std::optional(test.note) : std::nullopt) << test.comment;
  }
  EXPECT_EQ(noteComment({"own", "none"}), "/* source: own; reviewer: none */");
  EXPECT_EQ(noteComment({"", "none"}), "/* reviewer: none */");
  EXPECT_EQ(noteComment({}), "");
}

}  // namespace
}  // namespace kzm::strings
