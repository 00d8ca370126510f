// Lines on standard error from inside a host, whatever the host has made of it.
#ifndef KZM_PORT_STANDARD_ERROR_H
#define KZM_PORT_STANDARD_ERROR_H

#include <string_view>

namespace kzm::port {

/// Writes the line, its end included, in one piece, so that the lines of several programs do not mix. It is lost when
/// nobody reads, or does not read just now: the host's work never waits for it. A pipe takes up to 4096 bytes at once.
void writeToStandardError(std::string_view line) noexcept;

}  // namespace kzm::port

#endif
