// How much room a text takes where every character has a cell of its own: terminals and status bars.
//
// Every function takes any bytes, never fails, and may be called from any thread at any time.
#ifndef KZMUTILITIES_DISPLAY_WIDTH_H
#define KZMUTILITIES_DISPLAY_WIDTH_H

#include <cstddef>
#include <string_view>

#include <KZMUtilities/export.h>

namespace kzm {

/// The columns that the UTF-8 text takes: none for marks that join the letter before and for marks of direction, two
/// for wide ones (ideographs, kana, Hangul, emoji), else one. Control characters and bytes that are no UTF-8 take one.
///
/// Example:
///   displayWidth("℃ 東京")  // 6
[[nodiscard]] KZM_EXPORT std::size_t displayWidth(std::string_view text) noexcept;

/// The longest beginning of the text that takes no more than the given number of columns. Characters stay whole.
///
/// Example:
///   fitting("東京", 3)  // "東"
[[nodiscard]] KZM_EXPORT std::string_view fitting(std::string_view text, std::size_t columns) noexcept;

/// Whether the text has letters, or digits, that are written from right to left.
///
/// Example:
///   hasRightToLeft("٤٢ %")  // true
[[nodiscard]] KZM_EXPORT bool hasRightToLeft(std::string_view text) noexcept;

}  // namespace kzm

#endif
