// What somebody types, and what the wheel of a mouse does.
#ifndef KZM_CLI_TERMINAL_KEYS_H
#define KZM_CLI_TERMINAL_KEYS_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::cli {

enum class Key : std::uint8_t {
  quit,
  escape,
  up,
  down,
  pageUp,
  pageDown,
  first,
  last,
  wheelUp,
  wheelDown,
  pause,
  slower,
  faster,
  bits,
  shown,
  help,
  redraw,
};

/// Makes keys of the bytes that a terminal sends. What it does not know is passed over.
class Keyboard {
 public:
  /// The keys that end in these bytes; a sequence that is not at its end waits for more.
  [[nodiscard]] std::vector<Key> typed(std::string_view bytes);

 private:
  std::string pending_;
};

}  // namespace kzm::cli

#endif
