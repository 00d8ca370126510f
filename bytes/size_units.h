// The texts of the two families that show sizes: disk space and memory.
#ifndef KZM_BYTES_SIZE_UNITS_H
#define KZM_BYTES_SIZE_UNITS_H

#include "bytes/family.h"

namespace kzm::bytes {

// clang-format off
//    form         level          spacing          template  translator's hint
inline constexpr UnitText kSizeTexts[] = {
    {{Form::brief, Level::peta},  Spacing::tight,  "%@P",    "petabyte"},
    {{Form::brief, Level::tera},  Spacing::tight,  "%@T",    "terabyte"},
    {{Form::brief, Level::giga},  Spacing::tight,  "%@G",    "gigabyte"},
    {{Form::brief, Level::mega},  Spacing::tight,  "%@M",    "megabyte"},
    {{Form::brief, Level::kilo},  Spacing::tight,  "%@K",    "kilobyte"},
    {{Form::bytes, Level::peta},  Spacing::spaced, "%@ PB",  nullptr},
    {{Form::bytes, Level::tera},  Spacing::spaced, "%@ TB",  nullptr},
    {{Form::bytes, Level::giga},  Spacing::spaced, "%@ GB",  nullptr},
    {{Form::bytes, Level::mega},  Spacing::spaced, "%@ MB",  nullptr},
    {{Form::bytes, Level::kilo},  Spacing::spaced, "%@ KB",  nullptr},
    {{Form::bytes, Level::peta},  Spacing::tight,  "%@PB",   nullptr},
    {{Form::bytes, Level::tera},  Spacing::tight,  "%@TB",   nullptr},
    {{Form::bytes, Level::giga},  Spacing::tight,  "%@GB",   nullptr},
    {{Form::bytes, Level::mega},  Spacing::tight,  "%@MB",   nullptr},
    {{Form::bytes, Level::kilo},  Spacing::tight,  "%@KB",   nullptr},
};
// clang-format on
inline constexpr UnitIndex kSizeIndex = unitIndex(kSizeTexts);
static_assert(core::wellFormed(kSizeTexts));

}  // namespace kzm::bytes

#endif
