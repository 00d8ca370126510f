// A file or a pipe, read to its end.
#ifndef KZM_PORT_READ_ALL_H
#define KZM_PORT_READ_ALL_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <unistd.h>

#include "port/retried.h"

namespace kzm::port {

/// What the descriptor gives, at most the given number of bytes; null when reading fails, and errno says why.
[[nodiscard]] inline std::optional<std::string> readAll(int descriptor, std::size_t most) {
  std::string text;
  std::array<char, 4096> part{};
  while (text.size() < most) {
    const std::size_t wanted = std::min(part.size(), most - text.size());
    const ssize_t count = retried([&] { return ::read(descriptor, part.data(), wanted); });
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    text.append(part.data(), static_cast<std::size_t>(count));
  }
  return text;
}

}  // namespace kzm::port

#endif
