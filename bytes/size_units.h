// The units of the two families that show sizes: disk space and memory.
#ifndef KZM_BYTES_SIZE_UNITS_H
#define KZM_BYTES_SIZE_UNITS_H

#include "bytes/family.h"

namespace kzm::bytes {

// clang-format off
//   level        style          template  translator's hint
inline constexpr ByteUnit kSizeUnits[] = {
    {Level::peta, Style::brief,  "%@P",   "petabyte"},
    {Level::tera, Style::brief,  "%@T",   "terabyte"},
    {Level::giga, Style::brief,  "%@G",   "gigabyte"},
    {Level::mega, Style::brief,  "%@M",   "megabyte"},
    {Level::kilo, Style::brief,  "%@K",   "kilobyte"},
    {Level::peta, Style::spaced, "%@ PB", nullptr   },
    {Level::tera, Style::spaced, "%@ TB", nullptr   },
    {Level::giga, Style::spaced, "%@ GB", nullptr   },
    {Level::mega, Style::spaced, "%@ MB", nullptr   },
    {Level::kilo, Style::spaced, "%@ KB", nullptr   },
    {Level::peta, Style::tight,  "%@PB",  nullptr   },
    {Level::tera, Style::tight,  "%@TB",  nullptr   },
    {Level::giga, Style::tight,  "%@GB",  nullptr   },
    {Level::mega, Style::tight,  "%@MB",  nullptr   },
    {Level::kilo, Style::tight,  "%@KB",  nullptr   },
};
// clang-format on
inline constexpr auto kSizeRows = core::unitRows(kSizeUnits);
inline constexpr UnitIndex kSizeIndex = unitIndex(kSizeUnits);
static_assert(core::wellFormed(kSizeRows));

}  // namespace kzm::bytes

#endif
