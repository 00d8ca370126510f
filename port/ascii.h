// The characters that identifiers, keys and patterns are made of, whatever the locale, and where those of UTF-8 begin.
#ifndef KZM_PORT_ASCII_H
#define KZM_PORT_ASCII_H

namespace kzm::port {

[[nodiscard]] constexpr bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }
[[nodiscard]] constexpr bool isLower(char c) noexcept { return c >= 'a' && c <= 'z'; }
[[nodiscard]] constexpr bool isUpper(char c) noexcept { return c >= 'A' && c <= 'Z'; }
[[nodiscard]] constexpr bool isLetter(char c) noexcept { return isLower(c) || isUpper(c); }
[[nodiscard]] constexpr bool isAlphanumeric(char c) noexcept { return isLetter(c) || isDigit(c); }
[[nodiscard]] constexpr char upper(char c) noexcept { return isLower(c) ? static_cast<char>(c - 'a' + 'A') : c; }
[[nodiscard]] constexpr char lower(char c) noexcept { return isUpper(c) ? static_cast<char>(c - 'A' + 'a') : c; }

/// Whether the byte belongs to a character of UTF-8 that began before it.
[[nodiscard]] constexpr bool continuesCharacter(char byte) noexcept {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace kzm::port

#endif
