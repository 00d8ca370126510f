// Searches with regular expressions.
#ifndef KZM_PORT_REGEX_H
#define KZM_PORT_REGEX_H

#include <optional>
#include <string>
#include <string_view>

namespace kzm::port {

/// The text of capture group 1 in the first match of the pattern in the whole text, case-insensitively.
///
/// text, pattern   UTF-8; each invalid sequence counts as one U+FFFD. Texts above kLongestText are not searched, nor
///                 are those above kLongestTextForBackReference when the pattern refers back to a group. Patterns
///                 above kAlwaysCompiled are not compiled when their sets would take more than a quarter of a second,
///                 and those above kLongestPattern because some of that length take as long whatever they hold.
/// Returns null when there is no match, when group 1 took no part in it or does not exist, when the pattern is
/// invalid, and when the search is given up (see regex.cc). A failed allocation throws std::bad_alloc. May be called
/// from any thread.
[[nodiscard]] std::optional<std::string> firstGroup(std::string_view text, std::string_view pattern);

inline constexpr std::size_t kLongestText = std::size_t{1} << 30U;                  ///< in bytes
inline constexpr std::size_t kAlwaysCompiled = std::size_t{1} << 11U;               ///< in bytes
inline constexpr std::size_t kLongestPattern = std::size_t{1} << 16U;               ///< in bytes
inline constexpr std::size_t kLongestTextForBackReference = std::size_t{1} << 14U;  ///< in bytes

}  // namespace kzm::port

#endif
