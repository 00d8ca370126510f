#include "machine/volumes.h"

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
                            "/dev/a /works ext4 rw 0 0\n"),
            (Names{"/works"}));
}

TEST(Volumes, OddLinesAndEscapesDoNoHarm) {
  Machine machine;
  EXPECT_EQ(machine.namesOf("\n/dev/a\n/dev/a /a\n/dev/b /b\\ ext4\n/dev/c /c\\04 ext4\n/dev/d /d\\999 ext4\n"
                            "/dev/e /e\\033[2J ext4\n"),
            (Names{"/b\\", "/c\\04", "/d\\999", "/e[2J"}));
  EXPECT_EQ(machine.asked.back(), "/e\x1b[2J") << "it is measured under its own name";
}

TEST(Volumes, MeasuringGivesRoomThatAddsUp) {
  const tests::ScratchDirectory scratch;
  const std::optional<Space> space = measuredSpace(scratch.path(""));
  ASSERT_TRUE(space.has_value());
  EXPECT_GT(space->total, 0U);
  EXPECT_LE(space->used + space->free, space->total);
  EXPECT_FALSE(measuredSpace(scratch.path("missing")).has_value());
  EXPECT_FALSE(measuredSpace(scratch.write("file", "")).has_value()) << "a file that is mounted over is no volume";
}

}  // namespace
}  // namespace kzm::machine
