// What each thread holds ready from the shared cache, so that a call in the steady state takes no lock.
//
// A thread keeps the unit texts and formatters it used, and lets go of them when a host has changed the cache: so an
// entry that a host puts there is honoured by the very next call, and nothing is freed while somebody reads it.
#ifndef KZM_CORE_WARM_H
#define KZM_CORE_WARM_H

#include <cstdint>
#include <memory>

#include <KZMUtilities/formatters.h>

#include "core/unit_table.h"

namespace kzm::core {

/// How a number of fraction digits is meant.
enum class DigitRule : std::uint8_t { exactly, atMost };

/// The shared formatter for so many fraction digits. The reference is good until this thread's next call.
[[nodiscard]] const NumberFormatter& warmFormatter(DigitRule rule, std::int64_t digits);

/// The text of one row of the family's table; null when the table in the cache lacks it. The pointer is good until
/// this thread's next call.
[[nodiscard]] const Template* warmUnit(const UnitTable& table, std::size_t row);

}  // namespace kzm::core

#endif
