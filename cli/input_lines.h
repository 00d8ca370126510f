// Standard input, line by line, read in blocks.
#ifndef KZM_CLI_INPUT_LINES_H
#define KZM_CLI_INPUT_LINES_H

#include <optional>
#include <string>
#include <string_view>

namespace kzm::cli {

/// A caller that answers each line should write its answers whenever no further line is at hand: a block that is there
/// at once is answered at once, and a line that somebody types is answered before the next one is waited for.
class InputLines {
 public:
  /// Whether next() gives a line without reading, which may have to wait.
  [[nodiscard]] bool isNextAtHand();
  /// The next line without its end, good until the next call; the last one needs no end. Nothing after it. Input that
  /// cannot be read is a std::runtime_error.
  [[nodiscard]] std::optional<std::string_view> next();

 private:
  bool readBlock();
  std::string_view taken(std::size_t end);

  std::string text_;             // what was read
  std::size_t start_ = 0;        // of the next line in it
  std::size_t searched_ = 0;     // up to where no line ends
  std::size_t end_ = kNotFound;  // of the next line, once it was found
  static constexpr std::size_t kNotFound = std::string::npos;
};

}  // namespace kzm::cli

#endif
