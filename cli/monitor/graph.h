// Numbers as blocks of a line.
#ifndef KZM_CLI_MONITOR_GRAPH_H
#define KZM_CLI_MONITOR_GRAPH_H

#include <cstddef>
#include <deque>
#include <string>

namespace kzm::cli {

/// The last values as one block each, the latest at the right; a value of `top` or more is a full one. Zero is the
/// lowest, everything above it is higher; NaN, and what was before the first value, is a space.
[[nodiscard]] std::string graph(const std::deque<double>& values, std::size_t columns, double top);

/// The greatest of the last values that the columns show, and `least` if none is greater.
[[nodiscard]] double topOf(const std::deque<double>& values, std::size_t columns, double least);

}  // namespace kzm::cli

#endif
