// Network and disk counters from recorded files.
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "machine/disks.h"
#include "machine/network.h"
#include "tests/support/scratch_directory.h"

namespace kzm::machine {
namespace {

std::vector<std::string> textsOf(const Sample& sample) {
  std::vector<std::string> texts;
  for (const Counter& counter : sample.counters) {
    texts.push_back(counter.name + " " + std::to_string(counter.in) + " " + std::to_string(counter.out));
  }
  return texts;
}

using Texts = std::vector<std::string>;

TEST(Network, ReadsBothDirectionsOfEveryInterface) {
  const tests::ScratchDirectory scratch;
  scratch.write("proc/net/dev",
                "Inter-|   Receive                                                |  Transmit\n"
                " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs\n"
                "    lo:  100       2    0    0    0     0          0         0      100       2    0    0 0 0 0 0\n"
                "  eth0:18446744073709551615 2 0 0 0 0 0 0 4096 7 0 0 0 0 0 0\n"
                "we:ird: 1 0 0 0 0 0 0 0 2 0 0 0 0 0 0 0\n"
                "\x1b[31mred: 3 0 0 0 0 0 0 0 4 0 0 0 0 0 0 0\n");
  const Sample sample = readNetwork(Root(scratch.path("")), 5);
  EXPECT_EQ(sample.seconds, 5);
  EXPECT_EQ(textsOf(sample), (Texts{"lo 100 100", "eth0 18446744073709551615 4096", "we:ird 1 2", "[31mred 3 4"}));
}

TEST(Network, PassesOverLinesThatMakeNoSense) {
  const tests::ScratchDirectory scratch;
  scratch.write("proc/net/dev",
                "\n:\neth0\neth0:\neth1: 1 2 3\neth2: -1 0 0 0 0 0 0 0 2\neth3: 1 0 0 0 0 0 0 0 x\n"
                ": 1 0 0 0 0 0 0 0 2\neth4: 18446744073709551616 0 0 0 0 0 0 0 2\ngood: 1 0 0 0 0 0 0 0 2");
  EXPECT_EQ(textsOf(readNetwork(Root(scratch.path("")), 0)), (Texts{"good 1 2"}));
}

constexpr const char* kStat = "  10 0 4 0 20 0 6 0 0 0 0\n";

TEST(Disks, AreWholeDisksWithAMedium) {
  const tests::ScratchDirectory scratch;
  for (const char* name : {"sda", "nvme0n1", "loop0", "ram0", "zram0", "dm-0", "md127", "nbd0", "sr0", "vda"}) {
    scratch.write("sys/block/" + std::string(name) + "/stat", kStat);
    scratch.write("sys/block/" + std::string(name) + "/size", "1000\n");
  }
  scratch.write("sys/block/nbd0/size", "0\n");
  scratch.write("sys/block/sda/size", "1\n");
  scratch.write("sys/block/vdb/stat", kStat);
  scratch.write("sys/block/sda/sda1/stat", kStat);
  EXPECT_EQ(textsOf(readDisks(Root(scratch.path("")), 0)),
            (Texts{"nvme0n1 2048 3072", "sda 2048 3072", "sr0 2048 3072", "vda 2048 3072", "vdb 2048 3072"}));
}

TEST(Disks, WithoutTheirDirectoryComeFromTheTableWithoutPartitions) {
  const tests::ScratchDirectory scratch;
  scratch.write("proc/diskstats",
                "   8       0 sda 1 0 10 0 1 0 20 0 0 0 0\n"
                "   8       1 sda1 1 0 10 0 1 0 20 0 0 0 0\n"
                " 259       0 nvme0n1 1 0 1 0 1 0 2 0 0 0 0 0 0 0 0 0 0\n"
                " 259       1 nvme0n1p1 1 0 1 0 1 0 2 0 0 0 0\n"
                " 259       2 nvme0n10 1 0 3 0 1 0 4 0 0 0 0\n"
                "   7       0 loop0 1 0 10 0 1 0 20 0 0 0 0\n"
                " 253       0 dm-0 1 0 10 0 1 0 20 0 0 0 0\n"
                "   8      16 sdb 1 0 10\n"
                "   8      32 sdc 1 0 18446744073709551615 0 1 0 20\n"
                "   8      48 sdd 1 0 36028797018963968 0 1 0 20\n"
                "   8      64 sde 1 0 36028797018963967 0 1 0 20\n"
                "garbage\n");
  EXPECT_EQ(textsOf(readDisks(Root(scratch.path("")), 0)),
            (Texts{"sda 5120 10240", "nvme0n1 512 1024", "nvme0n10 1536 2048", "sde 18446744073709551104 10240"}));
}

}  // namespace
}  // namespace kzm::machine
