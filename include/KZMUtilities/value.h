// The values that options, results and settings are made of. Include dictionary.h, which completes this header.
//
// `Value` and `Dictionary` are plain types that need no library: the settings, localization and utilities libraries all
// share them by this header alone. Copying a Value copies a string, and shares an array or a dictionary, which never
// change once they are inside a Value. Like any standard container, one object may be read from many threads, or
// changed by one.
#ifndef KZMUTILITIES_VALUE_H
#define KZMUTILITIES_VALUE_H

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kzm {

class Dictionary;
class Value;

using Array = std::vector<Value>;

/// Base of everything that a Value passes on without looking inside: text attributes of a host's own kind, and
/// the shared objects of the library's cache.
class Object {
 public:
  Object() = default;
  Object(const Object&) = default;
  Object& operator=(const Object&) = default;
  virtual ~Object() = default;

  /// Whether the other object means the same. Two neighboring runs of text with equal attributes are one.
  [[nodiscard]] virtual bool equals(const Object& other) const { return this == &other; }
};

/// One null, boolean, integer, double, string, array, dictionary or opaque object.
class Value {
 public:
  Value() noexcept = default;
  Value(std::nullptr_t) noexcept {}
  Value(double number) noexcept : data_(number) {}
  Value(const char* text) : data_(std::string(text)) {}
  Value(std::string_view text) : data_(std::string(text)) {}
  Value(std::string text) noexcept : data_(std::move(text)) {}
  Value(Array elements) : data_(std::make_shared<const Array>(std::move(elements))) {}
  Value(std::shared_ptr<const Array> elements) noexcept : data_(held(std::move(elements))) {}
  Value(const Dictionary& members);
  Value(Dictionary&& members);
  Value(std::shared_ptr<const Dictionary> members) noexcept : data_(held(std::move(members))) {}

  /// Any other shared pointer is an opaque object; a null pointer of any kind is the null Value.
  template <std::derived_from<Object> T>
  Value(std::shared_ptr<T> object) noexcept : data_(held(std::shared_ptr<const Object>(std::move(object)))) {}

  /// A boolean or an integer. Unsigned integers above the signed 64-bit range are held as doubles.
  template <std::integral T>
  Value(T number) noexcept : data_(held(number)) {}

  [[nodiscard]] bool isNull() const noexcept { return std::holds_alternative<std::monostate>(data_); }

  // Each of these gives null when the Value is of another kind.
  [[nodiscard]] const bool* boolean() const noexcept { return std::get_if<bool>(&data_); }
  [[nodiscard]] const std::int64_t* integer() const noexcept { return std::get_if<std::int64_t>(&data_); }
  [[nodiscard]] const double* real() const noexcept { return std::get_if<double>(&data_); }
  [[nodiscard]] const std::string* string() const noexcept { return std::get_if<std::string>(&data_); }
  [[nodiscard]] const Array* array() const noexcept { return shared<Array>(); }
  [[nodiscard]] const Dictionary* dictionary() const noexcept { return shared<Dictionary>(); }
  [[nodiscard]] const Object* object() const noexcept { return shared<Object>(); }

  /// The dictionary itself or the object itself, for a holder that outlives this Value; null for another kind.
  [[nodiscard]] std::shared_ptr<const Dictionary> sharedDictionary() const noexcept { return owner<Dictionary>(); }
  [[nodiscard]] std::shared_ptr<const Object> sharedObject() const noexcept { return owner<Object>(); }

  /// Equality of kind and content: 1, 1.0 and true are three different Values.
  friend bool operator==(const Value& a, const Value& b);

 private:
  using Data = std::variant<std::monostate, bool, std::int64_t, double, std::string, std::shared_ptr<const Array>,
                            std::shared_ptr<const Dictionary>, std::shared_ptr<const Object>>;

  template <std::integral T>
  [[nodiscard]] static Data held(T number) noexcept {
    if constexpr (std::same_as<T, bool>) {
      return number;
    } else {
      return std::in_range<std::int64_t>(number) ? Data(static_cast<std::int64_t>(number))
                                                 : Data(static_cast<double>(number));
    }
  }
  template <class T>
  [[nodiscard]] static Data held(std::shared_ptr<const T> pointer) noexcept {
    return pointer != nullptr ? Data(std::move(pointer)) : Data();
  }
  template <class T>
  [[nodiscard]] const T* shared() const noexcept {
    const auto* pointer = std::get_if<std::shared_ptr<const T>>(&data_);
    return pointer != nullptr ? pointer->get() : nullptr;
  }
  template <class T>
  [[nodiscard]] std::shared_ptr<const T> owner() const noexcept {
    const auto* pointer = std::get_if<std::shared_ptr<const T>>(&data_);
    return pointer != nullptr ? *pointer : nullptr;
  }

  Data data_;
};

}  // namespace kzm

#endif
