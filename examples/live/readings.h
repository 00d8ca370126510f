// What the panels in C++ show: this machine's readings as text, in the user's language.
#ifndef KZM_EXAMPLES_LIVE_READINGS_H
#define KZM_EXAMPLES_LIVE_READINGS_H

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include <KZMUtilities/widest_text.h>

#include "machine/files.h"
#include "machine/rates.h"

namespace kzm::live {

/// Network received and sent, disks read and written, memory used, the highest temperature.
inline constexpr std::size_t kRows = 6;

/// What the row is about, such as "Network · received".
[[nodiscard]] std::string labelOf(std::size_t row);

/// The widest text that the row ever shows, as the panel's font measures it.
[[nodiscard]] std::string widestOf(std::size_t row, const TextMeasure& measure);

/// The time of day, as the locale writes it.
[[nodiscard]] std::string timeText();

/// Whether the user's language is written from right to left.
[[nodiscard]] bool isRightToLeft();

class Readings {
 public:
  /// The rows' texts: rates since the last call, a dash for what this machine does not have.
  [[nodiscard]] std::array<std::string, kRows> next();

 private:
  machine::Root root_{"/"};
  machine::Sample network_ = {};
  machine::Sample disks_ = {};
};

}  // namespace kzm::live

#endif
