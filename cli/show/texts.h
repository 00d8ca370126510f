// Readings as cells. Every number and every unit is written by the library.
#ifndef KZM_CLI_SHOW_TEXTS_H
#define KZM_CLI_SHOW_TEXTS_H

#include <array>
#include <cstddef>
#include <string>

#include <KZMUtilities/dictionary.h>

#include "cli/show/layout.h"
#include "cli/show/readings.h"

namespace kzm::cli {

/// The writer of readings, in the user's language and units as they are at the first text.
class Texts {
 public:
  /// With options of KZMUtilitiesFormatBandwidth for the network.
  explicit Texts(const Dictionary& bandwidth = {});

  /// The reading; what is not known is a faint dash.
  [[nodiscard]] Cell cell(const Measured& reading) const;

  /// The text of the cell.
  [[nodiscard]] std::string text(const Measured& reading) const;

  /// The widest text that the reading can have: of a state, the one that it has.
  [[nodiscard]] std::string widest(const Measured& reading) const;

 private:
  [[nodiscard]] const Dictionary& optionsOf(Quantity quantity) const;

  Dictionary bandwidth_;
  // By quantity, once it was asked for.
  mutable std::array<std::string, static_cast<std::size_t>(Quantity::state)> widest_;
};

/// "5 min": the load of that time.
[[nodiscard]] std::string minutesText(double minutes);

}  // namespace kzm::cli

#endif
