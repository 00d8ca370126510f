// The settings file on the disk: read without waiting or trusting it, replaced as a whole, changed by one at a time.
#ifndef KZM_SETTINGS_FILE_H
#define KZM_SETTINGS_FILE_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

#include "port/descriptor.h"

namespace kzm::settings {

/// Larger files are not read, and none is written.
inline constexpr std::size_t kMostBytes = std::size_t{1} << 20U;

/// What distinguishes one state of the file from another. All zero when there is no file. Times in nanoseconds since
/// 1970.
struct Identity {
  int error = 0;  // why the rest is not known
  dev_t device = 0;
  ino_t inode = 0;
  off_t size = 0;
  std::int64_t modified = 0;
  std::int64_t changed = 0;

  friend bool operator==(const Identity&, const Identity&) = default;
};

/// The present state of the file at the path.
[[nodiscard]] Identity identityOf(const std::string& path);

/// Whether the file changed so lately that a further change could leave its identity as it is: the clocks of file
/// systems tick in steps of up to two seconds.
[[nodiscard]] bool isFresh(const Identity& identity);

/// What reading gave. There is no text and no fault when there is no file.
struct Content {
  std::optional<std::string> text;
  std::string fault;  // for example "it is not a regular file"
  Identity identity;
};

/// Reads the file. Never waits, whatever is in its place: only regular files are read.
[[nodiscard]] Content read(const std::string& path);

/// The new file's identity, or why there is none; for example "No space left on device".
struct Replaced {
  std::optional<Identity> identity;
  std::string fault;
};

/// Puts a file with this text in the place of the one at the path, all of it or nothing, while the lock is held. Mode
/// and owner stay; where they cannot stay, nothing is replaced. A new file is the user's only. Where the path is a
/// symbolic link, its target is replaced.
[[nodiscard]] Replaced replace(const std::string& path, std::string_view text);

/// Held by the one process that changes the file at the moment. It is a file of its own beside the settings, because
/// those are replaced under it.
class Lock {
 public:
  /// Makes missing directories, for the user only, and waits up to two seconds for the process that holds the lock.
  explicit Lock(const std::string& path);
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
  ~Lock() = default;

  [[nodiscard]] bool held() const noexcept { return descriptor_.isOpen(); }
  /// Why it is not held.
  [[nodiscard]] const std::string& fault() const noexcept { return fault_; }

 private:
  std::string fault_;
  port::Descriptor descriptor_;
};

}  // namespace kzm::settings

#endif
