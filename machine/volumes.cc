#include "machine/volumes.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <system_error>
#include <utility>
#include <vector>

#include "port/retried.h"

namespace kzm::machine {
namespace {

// File systems on a disk of this machine.
constexpr std::string_view kLocal[] = {"apfs",     "bcachefs", "btrfs",   "exfat", "ext2",  "ext3",   "ext4", "f2fs",
                                       "fuseblk",  "hfs",      "hfsplus", "jfs",   "msdos", "nilfs2", "ntfs", "ntfs3",
                                       "reiserfs", "udf",      "ufs",     "vfat",  "xfs",   "zfs"};

// What the root directory may also be, in containers and virtual machines.
constexpr std::string_view kLocalAsRoot[] = {"9p", "aufs", "erofs", "overlay", "squashfs", "tmpfs", "virtiofs"};

struct Mount {
  std::string device;
  std::string point;
  std::string type;
};

template <std::size_t n>
bool isOneOf(const std::string_view (&types)[n], std::string_view type) {
  return std::ranges::find(types, type) != std::end(types);
}

bool isLocal(const Mount& mount) {
  return isOneOf(kLocal, mount.type) || (mount.point == "/" && isOneOf(kLocalAsRoot, mount.type));
}

// Spaces, line ends and backslashes in names are written as "\040" and the like.
std::string unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view code = text.substr(i + 1, 3);
    unsigned char byte = 0;
    const auto [end, error] = std::from_chars(code.data(), code.data() + code.size(), byte, 8);
    if (text[i] == '\\' && error == std::errc() && end == code.data() + 3) {
      plain += static_cast<char>(byte);
      i += 3;
    } else {
      plain += text[i];
    }
  }
  return plain;
}

// A mount hides what was mounted at the same place before.
void add(std::vector<Mount>& mounts, Mount mount) {
  std::erase_if(mounts, [&mount](const Mount& other) { return other.point == mount.point; });
  mounts.push_back(std::move(mount));
}

std::vector<Mount> mountsIn(std::string_view text) {
  std::vector<Mount> mounts;
  for (const std::string_view line : linesOf(text)) {
    const std::vector<std::string_view> fields = fieldsOf(line);
    if (fields.size() < 3) continue;
    add(mounts, {unescaped(fields[0]), unescaped(fields[1]), std::string(fields[2])});
  }
  return mounts;
}

std::vector<Mount> withoutRemote(std::vector<Mount> mounts) {
  std::erase_if(mounts, [](const Mount& mount) { return !isLocal(mount); });
  std::stable_sort(mounts.begin(), mounts.end(),
                   [](const Mount& a, const Mount& b) { return a.point.size() < b.point.size(); });
  return mounts;
}

bool isSane(const Space& space) { return space.total > 0 && space.used <= space.total && space.free <= space.total; }

}  // namespace

std::optional<Space> measuredSpace(const std::string& directory) {
  struct stat status {};
  if (stat(directory.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return std::nullopt;
  struct statvfs room {};
  if (port::retried([&] { return statvfs(directory.c_str(), &room); }) != 0) return std::nullopt;
  const std::uint64_t block = room.f_frsize;
  if (room.f_bfree > room.f_blocks) return std::nullopt;
  return Space{room.f_blocks * block, (room.f_blocks - room.f_bfree) * block, room.f_bavail * block};
}

std::vector<Volume> readVolumes(const Root& root, const SpaceOf& spaceOf) {
  std::vector<Volume> volumes;
  std::vector<std::string> devices;
  for (const Mount& mount : withoutRemote(mountsIn(readText(root.at("proc/self/mounts"))))) {
    if (std::ranges::find(devices, mount.device) != devices.end()) continue;
    const std::optional<Space> space = spaceOf(mount.point);
    if (!space || !isSane(*space)) continue;
    devices.push_back(mount.device);
    volumes.push_back({shownText(mount.point), mount.type, *space});
  }
  return volumes;
}

}  // namespace kzm::machine
