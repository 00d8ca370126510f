// Takes a range of values apart where more than the digits of the text change.
#ifndef KZM_WIDEST_STRETCHES_H
#define KZM_WIDEST_STRETCHES_H

#include <vector>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/widest_text.h>

#include "widest/families.h"

namespace kzm::widest {

/// Values, both ends among them, whose texts have one unit, one sign and one count of decimals.
struct Stretch {
  double from;
  double to;
};

[[nodiscard]] std::vector<Stretch> stretchesOf(const Family& family, const Dictionary& options, ValueRange values);

}  // namespace kzm::widest

#endif
