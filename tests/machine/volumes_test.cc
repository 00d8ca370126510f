#include "machine/volumes.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/scratch_directory.h"

namespace kzm::machine {
namespace {

using Names = std::vector<std::string>;

struct Machine {
  tests::ScratchDirectory scratch;
  Names asked;

  // The names of the volumes when every directory but three has room.
  Names namesOf(const std::string& mounts) {
    scratch.write("proc/self/mounts", mounts);
    Names names;
    const auto spaceOf = [this](const std::string& directory) -> std::optional<Space> {
      asked.push_back(directory);
      if (directory == "/broken") return std::nullopt;
      if (directory == "/empty") return Space{0, 0, 0};
      if (directory == "/garbage") return Space{10, 11, 5};
      if (directory == "/freer") return Space{10, 5, 11};
      if (directory == "/full") return Space{10, 10, 0};
      if (directory == "/free") return Space{10, 0, 10};
      if (directory == "/tiny") return Space{1, 0, 1};
      return Space{100, 60, 30};
    };
    for (const Volume& volume : readVolumes(Root(scratch.path("")), spaceOf)) names.push_back(volume.name);
    return names;
  }
};

TEST(Volumes, AreLocalFileSystemsAndNoOtherIsEvenAsked) {
  Machine machine;
  const Names names = machine.namesOf(
      "proc /proc proc rw 0 0\n"
      "tmpfs /run tmpfs rw 0 0\n"
      "/dev/sda2 / ext4 rw 0 0\n"
      "/dev/sda1 /boot/efi vfat rw 0 0\n"
      "server:/home /home nfs4 rw 0 0\n"
      "//server/share /mnt/share cifs rw 0 0\n"
      "me@server: /mnt/ssh fuse.sshfs rw 0 0\n"
      "gvfsd-fuse /run/user/1000/gvfs fuse.gvfsd-fuse rw 0 0\n"
      "/dev/loop0 /snap/core/1 squashfs ro 0 0\n"
      "overlay /var/lib/containers/merged overlay rw 0 0\n"
      "/dev/sdb1 /media/My\\040Disk\\134 exfat rw 0 0\n");
  EXPECT_EQ(names, (Names{"/", "/boot/efi", "/media/My Disk\\"}));
  EXPECT_EQ(machine.asked, names);
}

TEST(Volumes, OneDeviceIsShownOnceWhereItsPathIsShortest) {
  Machine machine;
  EXPECT_EQ(machine.namesOf("/dev/sda2 /var/lib/docker btrfs rw 0 0\n"
                            "/dev/sda2 / btrfs rw 0 0\n"
                            "/dev/sda2 /home btrfs rw 0 0\n"),
            (Names{"/"}));
}

TEST(Volumes, TheRootOfAContainerMayBeAnOverlayAndThatOfAServerIsLeftOut) {
  Machine machine;
  EXPECT_EQ(machine.namesOf("overlay / overlay rw 0 0\n"), (Names{"/"}));
  EXPECT_EQ(machine.namesOf("server:/root / nfs rw 0 0\n"), Names{});
}

TEST(Volumes, AMountHidesTheOneBelow) {
  Machine machine;
  EXPECT_EQ(machine.namesOf("/dev/sda1 /data ext4 rw 0 0\nserver:/data /data nfs rw 0 0\n"), Names{});
  EXPECT_TRUE(machine.asked.empty());
}

TEST(Volumes, WhatCannotBeMeasuredIsLeftOut) {
  Machine machine;
  EXPECT_EQ(machine.namesOf("/dev/a /broken ext4 rw 0 0\n/dev/b /empty ext4 rw 0 0\n/dev/c /garbage ext4 rw 0 0\n"
                            "/dev/d /freer ext4 rw 0 0\n/dev/a /works ext4 rw 0 0\n"),
            (Names{"/works"}));
}

TEST(Volumes, AreMeasuredToTheLastByte) {
  Machine machine;
  EXPECT_EQ(machine.namesOf("/dev/a /full ext4 rw 0 0\n/dev/b /free ext4 rw 0 0\n/dev/c /tiny ext4 rw 0 0\n"),
            (Names{"/full", "/free", "/tiny"}));
}

TEST(Volumes, EveryEscapedByteIsRead) {
  Machine machine;
  EXPECT_EQ(machine.namesOf("/dev/a /\\101\\077\\100 ext4\n/dev/b /\\303\\274 ext4\n/dev/c /\\400\\080 ext4\n"),
            (Names{"/\u00fc", "/A?@", "/\\400\\080"}));
}

TEST(Volumes, OddLinesAndEscapesDoNoHarm) {
  Machine machine;
  EXPECT_EQ(machine.namesOf("\n/dev/a\n/dev/a /a\n/dev/b /b\\ ext4\n/dev/c /c\\04 ext4\n/dev/d /d\\999 ext4\n"
                            "/dev/e /e\\033[2J ext4\n"),
            (Names{"/b\\", "/c\\04", "/d\\999", "/e[2J"}));
  EXPECT_EQ(machine.asked.back(), "/e\x1b[2J") << "it is measured under its own name";
}

// Others write at the same time, so a measurement counts that nothing was written around.
TEST(Volumes, MeasuringGivesWhatIsUsedAndWhatIsFree) {
  const tests::ScratchDirectory scratch;
  for (int attempt = 0; attempt < 1000; ++attempt) {
    const auto before = std::filesystem::space(scratch.path(""));
    const std::optional<Space> space = measuredSpace(scratch.path(""));
    const auto after = std::filesystem::space(scratch.path(""));
    if (before.free != after.free || before.available != after.available) continue;
    ASSERT_TRUE(space.has_value());
    EXPECT_EQ(space->used, before.capacity - before.free);
    EXPECT_EQ(space->free, before.available);
    return;
  }
  GTEST_SKIP() << "something writes all the time";
}

TEST(Volumes, MeasuringGivesRoomThatAddsUp) {
  const tests::ScratchDirectory scratch;
  const std::optional<Space> space = measuredSpace(scratch.path(""));
  ASSERT_TRUE(space.has_value());
  EXPECT_GT(space->total, 0U);
  EXPECT_LE(space->used + space->free, space->total);
  EXPECT_EQ(space->total, std::filesystem::space(scratch.path("")).capacity);
  EXPECT_FALSE(measuredSpace(scratch.path("missing")).has_value());
  EXPECT_FALSE(measuredSpace(scratch.write("file", "")).has_value()) << "a file that is mounted over is no volume";
}

}  // namespace
}  // namespace kzm::machine
