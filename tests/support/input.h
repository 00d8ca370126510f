// Takes values off bytes: those that a fuzzer gives, or drawn ones.
#ifndef KZM_TESTS_SUPPORT_INPUT_H
#define KZM_TESTS_SUPPORT_INPUT_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace kzm::tests {

/// The bytes, from first to last. What is asked for beyond the end is zero or empty.
class Input {
 public:
  Input(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes, size) {}

  [[nodiscard]] bool empty() const noexcept { return bytes_.empty(); }

  /// A value of any bit pattern.
  template <class T>
  [[nodiscard]] T take() {
    T value{};
    const std::size_t count = std::min(sizeof value, bytes_.size());
    std::memcpy(&value, bytes_.data(), count);
    bytes_ = bytes_.subspan(count);
    return value;
  }

  /// A number from 0 on, below the count.
  [[nodiscard]] std::size_t below(std::size_t count) { return count == 0 ? 0 : take<std::uint16_t>() % count; }

  /// One of the choices.
  template <class Choices>
  [[nodiscard]] const auto& any(const Choices& choices) {
    return choices[below(std::size(choices))];
  }

  /// All bytes up to the given one, which is taken too, or to the end.
  [[nodiscard]] std::string_view textTo(char end) {
    const std::string_view text = rest();
    const std::string_view taken = text.substr(0, text.find(end));
    bytes_ = bytes_.subspan(std::min(text.size(), taken.size() + 1));
    return taken;
  }

  [[nodiscard]] std::string_view rest() const { return {reinterpret_cast<const char*>(bytes_.data()), bytes_.size()}; }

 private:
  std::span<const std::uint8_t> bytes_;
};

}  // namespace kzm::tests

#endif
