// What is wrong in a string table, and where.
#ifndef TOOLS_STRINGS_FAULT_H
#define TOOLS_STRINGS_FAULT_H

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace kzm::strings {

struct Fault {
  std::string path;
  std::size_t line;  // 0 when the fault is of the whole file
  std::string what;
};

using Faults = std::vector<Fault>;

/// The fault in one line, as compilers write theirs: "path:line: what".
[[nodiscard]] inline std::string asLine(const Fault& fault) {
  const std::string place = fault.line == 0 ? fault.path : fault.path + ':' + std::to_string(fault.line);
  return place + ": " + fault.what;
}

/// Ends the reading of a file that cannot be understood.
struct Unreadable : std::runtime_error {
  explicit Unreadable(Fault found) : std::runtime_error(asLine(found)), fault(std::move(found)) {}
  Fault fault;
};

}  // namespace kzm::strings

#endif
