#include "cli/terminal/keys.h"

#include <gtest/gtest.h>
#include <string>

namespace kzm::cli {
namespace {

using Keys = std::vector<Key>;

struct Case {
  const char* why;
  const char* bytes;
  Keys keys;
};
const Case kCases[] = {
    {"letters", "qpbs?+-", {Key::quit, Key::pause, Key::bits, Key::shown, Key::help, Key::slower, Key::faster}},
    {"arrows", "\x1b[A\x1b[B", {Key::up, Key::down}},
    {"arrows of the other mode", "\x1bOA\x1bOB", {Key::up, Key::down}},
    {"keys with numbers", "\x1b[5~\x1b[6~\x1b[1~\x1b[4~", {Key::pageUp, Key::pageDown, Key::first, Key::last}},
    {"the wheel", "\x1b[<64;10;5M\x1b[<65;10;5M", {Key::wheelUp, Key::wheelDown}},
    {"buttons are nothing", "\x1b[<0;10;5M\x1b[<0;10;5m", {}},
    {"an escape of its own", "\x1b", {Key::escape}},
    {"keys that mean nothing", "xyz\x1b[15~\x1b[200~", {}},
    {"letters of other languages", "ßя漢q", {Key::quit}},
};

TEST(Keys, Sequences) {
  for (const Case& row : kCases) EXPECT_EQ(Keyboard().typed(row.bytes), row.keys) << row.why;
}

TEST(Keys, ASequenceMayComeInParts) {
  Keyboard keyboard;
  EXPECT_EQ(keyboard.typed("\x1b["), Keys{});
  EXPECT_EQ(keyboard.typed("5"), Keys{});
  EXPECT_EQ(keyboard.typed("~q"), (Keys{Key::pageUp, Key::quit}));
}

TEST(Keys, ASequenceWithoutEndIsGivenUp) {
  Keyboard keyboard;
  EXPECT_EQ(keyboard.typed("\x1b[" + std::string(100, '1')), Keys{Key::escape}) << "its bytes are keys of their own";
  EXPECT_EQ(keyboard.typed("q"), Keys{Key::quit});
}

}  // namespace
}  // namespace kzm::cli
