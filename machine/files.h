// Reads the kernel's small text files: missing, unreadable or non-numeric files yield no value.
#ifndef KZM_MACHINE_FILES_H
#define KZM_MACHINE_FILES_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kzm::machine {

/// The directory under which the kernel's files are: "/" here, that of a recorded machine in a test.
class Root {
 public:
  explicit Root(std::string path) : path_(std::move(path)) {}
  /// The place of a file, such as "proc/net/dev".
  [[nodiscard]] std::string at(std::string_view file) const { return path_ + "/" + std::string(file); }

 private:
  std::string path_;
};

/// The text of a regular file, cut at 4 MiB; empty when there is none. Never waits for a pipe or a device.
[[nodiscard]] std::string readText(const std::string& path);

/// The first line of the file as text to show: see shownText.
[[nodiscard]] std::string readLabel(const std::string& path);

/// The number that the file holds, and nothing else but spaces; nothing when it holds no finite number.
[[nodiscard]] std::optional<double> readNumber(const std::string& path);

/// The names in a directory, without those that begin with a dot; numbers in them in order of value.
[[nodiscard]] std::vector<std::string> namesIn(const std::string& directory);

/// The lines of the text without their ends.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

/// The text without spaces and line ends around it.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The parts of the line between spaces.
[[nodiscard]] std::vector<std::string_view> fieldsOf(std::string_view line);

/// A whole number without sign, and nothing else; nothing for any other text and beyond 64 bits.
[[nodiscard]] std::optional<std::uint64_t> countIn(std::string_view text);

/// A finite number with a point, whatever the locale, and nothing else but spaces around it.
[[nodiscard]] std::optional<double> numberIn(std::string_view text);

/// The text without what could steer a terminal or the direction of writing, without bytes that are not UTF-8, and
/// without spaces at its ends. Names come from devices, so they are as trustworthy as whatever was plugged in.
[[nodiscard]] std::string shownText(std::string_view text);

}  // namespace kzm::machine

#endif
