// The settings in memory, kept level with the file.
//
// They are one immutable snapshot. Every thread keeps its own pointer to the snapshot it last read, and takes a new one
// only when the version says that there is one: a read is a look at the clock, two comparisons and the search for the
// key. Now and then one of the reading threads looks at the file, which is how a change by another process gets here
// without a thread, a main loop or a file watch of our own.
#ifndef KZM_SETTINGS_STORE_H
#define KZM_SETTINGS_STORE_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include <KZMUtilities/dictionary.h>

#include "settings/file.h"
#include "settings/json.h"

namespace kzm::settings {

struct Snapshot;

/// The settings of one file. Every call may be made from any thread. Nothing is read before the first call.
class Store {
 public:
  /// An empty path means that there is no place for settings: there are none, and none can be stored.
  /// lookEveryMilliseconds is how long a change by another process may stay unseen. With 0 every read looks at
  /// the file.
  explicit Store(std::string path, std::int64_t lookEveryMilliseconds = 300);
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;
  ~Store();

  /// The setting, or null. No lock and, for numbers, no allocation, unless the settings changed since the thread's
  /// last read.
  [[nodiscard]] Value find(std::string_view keyPath);

  /// Stores or, with null, removes a setting; false when that is refused or fails. Why the file could not be changed is
  /// reported in one line on standard error.
  [[nodiscard]] bool set(const Value& object, std::string_view keyPath);

  /// All settings.
  [[nodiscard]] Dictionary objects();

  /// Forgets the file for good.
  void useObjects(Dictionary objects);

 private:
  struct File {
    Parsed parsed;
    Identity identity;
    std::size_t hash = 0;  // of its text
  };

  const Snapshot& current();
  void loadFirst();
  void lookAtFile(std::int64_t now, std::int64_t due);
  void reload();
  [[nodiscard]] File readFile() const;
  void complainOnce(const File& file);
  void complain(std::string_view what, std::string_view fault) const;
  bool setInMemory(const Value& object, std::string_view keyPath);
  std::string setInFile(const Member& member, std::string_view keyPath);
  std::string write(File& file, const Member& member, std::string_view keyPath);
  void publish(Dictionary objects);

  std::atomic<std::uint64_t> version_{0};  // 0: nothing is loaded yet
  const std::int64_t lookEveryMilliseconds_;
  std::atomic<std::int64_t> nextLookMilliseconds_{0};  // of the coarse monotonic clock

  std::mutex changing_;  // guards the following, also while the file is read or written
  const std::string path_;
  bool inMemory_ = false;
  Identity seen_;
  std::size_t lastComplaint_ = 0;  // a hash; 0: none

  // Written under both locks; guarded by publishing_ for readers, for no longer than it takes to copy a pointer.
  std::mutex publishing_;
  std::shared_ptr<const Snapshot> snapshot_;
};

}  // namespace kzm::settings

#endif
