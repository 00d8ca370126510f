#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <KZMUtilities/process.h>

#include "tests/support/processes.h"
#include "tests/support/scratch_directory.h"

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

// In a process of its own, with no more descriptors than are given.
bool holdsInAFork(bool (*statement)(const FileHandle& handle)) {
  const pid_t child = ::fork();
  if (child == 0) {
    constexpr int kElsewhere = 20;
    const int opened = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::dup2(opened, kElsewhere);
    for (int number = 0; number < kElsewhere; ++number) ::close(number);
    ::_exit(statement(FileHandle::adopt(kElsewhere)) ? 0 : 1);
  }
  int status = -1;
  return ::waitpid(child, &status, 0) == child && status == 0;
}

TEST(FileHandle, DuplicatesStayClearOfTheStandardStreams) {
  EXPECT_TRUE(holdsInAFork([](const FileHandle& handle) { return handle.duplicate().descriptor() == 3; }));
}

TEST(FileHandle, AStandardStreamCanBeAdopted) {
  EXPECT_TRUE(holdsInAFork([](const FileHandle& handle) {
    return ::dup2(handle.descriptor(), STDIN_FILENO) == STDIN_FILENO && FileHandle::adopt(STDIN_FILENO).isOpen();
  }));
}

TEST(FileHandle, WritingMakesTheFileAndBeginsItAnew) {
  const ScratchDirectory scratch;
  const std::string path = scratch.path("file");
  for (const char* text : {"a longer text", "a text"}) {
    const FileHandle handle = FileHandle::openForWriting(path);
    EXPECT_GT(::write(handle.descriptor(), text, std::strlen(text)), 0);
    EXPECT_EQ(scratch.read("file"), text);
  }
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  const mode_t mask = ::umask(0);
  ::umask(mask);
  EXPECT_EQ(status.st_mode & 0777U, 0666U & ~mask);
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
