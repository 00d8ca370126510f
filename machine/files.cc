#include "machine/files.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <vector>

#include "port/descriptor.h"
#include "port/read_all.h"
#include "port/retried.h"

namespace kzm::machine {
namespace {

constexpr std::size_t kMostBytes = std::size_t{4} << 20U;
constexpr std::size_t kMostNames = 4096;
constexpr std::string_view kSpaces = " \t\r\n";

bool isRegular(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

std::string readText(const std::string& path) {
  const port::Descriptor file(
      port::retried([&] { return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
  if (!file.isOpen() || !isRegular(file.number())) return {};
  // An error in the middle, such as a sensor that does not answer, leaves nothing.
  return port::readAll(file.number(), kMostBytes).value_or("");
}

std::string readLabel(const std::string& path) {
  const std::string text = readText(path);
  return shownText(std::string_view(text).substr(0, text.find('\n')));
}

std::optional<double> readNumber(const std::string& path) { return numberIn(readText(path)); }

std::vector<std::string> namesIn(const std::string& directory) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> opened(opendir(directory.c_str()), &closedir);
  if (opened == nullptr) return names;
  // The stream belongs to this call alone.
  for (const dirent* entry = readdir(opened.get());                                     // NOLINT(concurrency-mt-unsafe)
       entry != nullptr && names.size() < kMostNames; entry = readdir(opened.get())) {  // NOLINT(concurrency-mt-unsafe)
    if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
  }
  std::ranges::sort(names,
                    [](const std::string& a, const std::string& b) { return strverscmp(a.c_str(), b.c_str()) < 0; });
  return names;
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kSpaces);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kSpaces) + 1 - first);
}

std::vector<std::string_view> fieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  for (std::string_view rest = trimmed(line); !rest.empty(); rest = trimmed(rest)) {
    const std::size_t end = std::min(rest.find_first_of(kSpaces), rest.size());
    fields.push_back(rest.substr(0, end));
    rest.remove_prefix(end);
  }
  return fields;
}

std::optional<std::uint64_t> countIn(std::string_view text) {
  std::uint64_t count = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return count;
}

std::optional<double> numberIn(std::string_view text) {
  const std::string_view digits = trimmed(text);
  double number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (digits.empty() || error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

}  // namespace kzm::machine
