// The characters that identifiers, keys and patterns are made of, whatever the locale.
#ifndef KZM_PORT_ASCII_H
#define KZM_PORT_ASCII_H

namespace kzm::port {

[[nodiscard]] constexpr bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }
[[nodiscard]] constexpr bool isLetter(char c) noexcept { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
[[nodiscard]] constexpr bool isAlphanumeric(char c) noexcept { return isLetter(c) || isDigit(c); }

}  // namespace kzm::port

#endif
