#include "cli/input_lines.h"

#include <algorithm>
#include <stdexcept>
#include <unistd.h>

#include "port/retried.h"

namespace kzm::cli {
namespace {

constexpr std::size_t kBlock = 65536;

std::size_t readInto(char* room, std::size_t size) {
  const ssize_t count = port::retried([&] { return ::read(STDIN_FILENO, room, size); });
  if (count < 0) throw std::runtime_error("standard input could not be read");
  return static_cast<std::size_t>(count);
}

}  // namespace

bool InputLines::isNextAtHand() {
  if (end_ == kNotFound) end_ = text_.find('\n', searched_);
  if (end_ == kNotFound) searched_ = text_.size();
  return end_ != kNotFound;
}

std::optional<std::string_view> InputLines::next() {
  while (!isNextAtHand()) {
    if (!readBlock()) return start_ < text_.size() ? std::optional(taken(text_.size())) : std::nullopt;
  }
  return taken(end_);
}

// Moves what is left of the last block to the front, and reads another one after it.
bool InputLines::readBlock() {
  text_.erase(0, start_);
  start_ = 0;
  searched_ = text_.size();
  text_.resize(searched_ + kBlock);
  text_.resize(searched_ + readInto(text_.data() + searched_, kBlock));
  return text_.size() > searched_;
}

std::string_view InputLines::taken(std::size_t end) {
  const std::string_view line(text_.data() + start_, end - start_);
  start_ = searched_ = std::min(end + 1, text_.size());
  end_ = kNotFound;
  return line;
}

}  // namespace kzm::cli
