#include <fcntl.h>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

#include <KZMUtilities/process.h>

#include "tests/support/processes.h"

namespace kzm::tests {
namespace {

bool closesOnExec(int descriptor) { return (::fcntl(descriptor, F_GETFD) & FD_CLOEXEC) != 0; }

TEST(FileHandle, ClosesOnceForAllCopies) {
  const FileHandle handle = FileHandle::openForReading("/dev/null");
  FileHandle copy;
  copy = handle;
  const int number = handle.descriptor();
  ASSERT_GE(number, 0);
  EXPECT_EQ(copy.descriptor(), number);
  copy.close();
  EXPECT_FALSE(handle.isOpen());
  EXPECT_EQ(handle.descriptor(), -1);
  const int reused = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, number);
  EXPECT_EQ(reused, number);
  handle.close();
  EXPECT_GE(::fcntl(reused, F_GETFD), 0) << "the number is somebody else's now";
  ::close(reused);
}

TEST(FileHandle, TheLastCopyClosesIt) {
  const std::ptrdiff_t before = openDescriptors();
  {
    FileHandle last;
    {
      const FileHandle first = FileHandle::openForReading("/dev/null");
      last = first;
    }
    EXPECT_EQ(openDescriptors(), before + 1);
  }
  EXPECT_EQ(openDescriptors(), before);
}

TEST(FileHandle, NothingIsInherited) {
  const Pipe pipe;
  EXPECT_TRUE(closesOnExec(pipe.readingEnd().descriptor()));
  EXPECT_TRUE(closesOnExec(pipe.writingEnd().descriptor()));
  EXPECT_TRUE(closesOnExec(pipe.writingEnd().duplicate().descriptor()));
  EXPECT_TRUE(closesOnExec(FileHandle::openForReading("/dev/null").descriptor()));
  EXPECT_TRUE(closesOnExec(FileHandle::adopt(::dup(STDIN_FILENO)).descriptor()));
}

TEST(FileHandle, WhatCannotBeOpenedIsClosed) {
  EXPECT_FALSE(FileHandle().isOpen());
  EXPECT_FALSE(FileHandle().duplicate().isOpen());
  EXPECT_FALSE(FileHandle::adopt(-1).isOpen());
  EXPECT_FALSE(FileHandle::adopt(987'654).isOpen());
  EXPECT_FALSE(FileHandle::openForReading("/no/such/file").isOpen());
  EXPECT_FALSE(FileHandle::openForWriting("/no/such/folder/file").isOpen());
  EXPECT_FALSE(FileHandle::openForReading(std::string("/dev/null\0x", 11)).isOpen());
  FileHandle().close();
}

TEST(FileHandle, ADuplicateHasALifeOfItsOwn) {
  const Pipe pipe;
  const FileHandle duplicate = pipe.writingEnd().duplicate();
  pipe.writingEnd().close();
  ASSERT_TRUE(duplicate.isOpen());
  EXPECT_EQ(::write(duplicate.descriptor(), "x", 1), 1);
  duplicate.close();
  EXPECT_EQ(readAll(pipe.readingEnd().descriptor()), "x");
}

}  // namespace
}  // namespace kzm::tests
