#include "port/read_all.h"

#include <cerrno>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include <KZMUtilities/process.h>

namespace kzm::port {
namespace {

std::optional<std::string> readFromPipe(std::string_view text, std::size_t most) {
  const Pipe pipe;
  EXPECT_EQ(::write(pipe.writingEnd().descriptor(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
  pipe.writingEnd().close();
  return readAll(pipe.readingEnd().descriptor(), most);
}

TEST(ReadAll, GivesWhatThereIsAndNoMoreThanAsked) {
  const std::string pages(10'000, 'x');
  struct Case {
    const char* why;
    std::string_view text;
    std::size_t most;
    std::size_t size;
  };
  const Case cases[] = {
      {"nothing", "", 100, 0},
      {"less than asked", "abc", 4, 3},
      {"as much as asked", "abc", 3, 3},
      {"more than asked", "abc", 2, 2},
      {"nothing is asked", "abc", 0, 0},
      {"several pages", pages, 20'000, 10'000},
      {"a part of a page", pages, 9'999, 9'999},
  };
  for (const Case& c : cases) EXPECT_EQ(readFromPipe(c.text, c.most), c.text.substr(0, c.size)) << c.why;
}

TEST(ReadAll, GivesNothingWhenReadingFails) {
  EXPECT_EQ(readAll(-1, 100), std::nullopt);
  EXPECT_EQ(errno, EBADF);
}

}  // namespace
}  // namespace kzm::port
