// A descriptor of the system, with one owner.
#ifndef KZM_PORT_DESCRIPTOR_H
#define KZM_PORT_DESCRIPTOR_H

#include <unistd.h>
#include <utility>

namespace kzm::port {

class Descriptor {
 public:
  Descriptor() = default;
  /// Takes it over. A number below zero, which the system gives when it cannot open something, is no descriptor.
  explicit Descriptor(int number) noexcept : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, kNone)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    Descriptor(std::move(other)).swap(*this);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }

  /// Below zero when it is closed.
  [[nodiscard]] int number() const noexcept { return number_; }
  [[nodiscard]] bool isOpen() const noexcept { return number_ >= 0; }

  /// Gives it to another owner.
  [[nodiscard]] int release() noexcept { return std::exchange(number_, kNone); }

  /// Not repeated when interrupted: the number is free by then, and perhaps somebody else's.
  void close() noexcept {
    if (isOpen()) ::close(std::exchange(number_, kNone));
  }

 private:
  static constexpr int kNone = -1;

  void swap(Descriptor& other) noexcept { std::swap(number_, other.number_); }

  int number_ = kNone;
};

}  // namespace kzm::port

#endif
