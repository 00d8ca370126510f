// The whole library in one include.
//
// "Never fails" in these headers means: every number has an answer, NaN and the infinities too, and so has every
// Dictionary of options. The one exception, for every call that is not noexcept, is memory that runs out: where this
// library asked for it, std::bad_alloc is thrown, nothing is half-made, and the next call is right. What ICU and GLib
// do then is in docs/reliability.md.
#ifndef KZMUTILITIES_KZMUTILITIES_H
#define KZMUTILITIES_KZMUTILITIES_H

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/bytes.h>
#include <KZMUtilities/conversions.h>
#include <KZMUtilities/dates.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/display_width.h>
#include <KZMUtilities/drawing.h>
#include <KZMUtilities/export.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/guards.h>
#include <KZMUtilities/key.h>
#include <KZMUtilities/options.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/process.h>
#include <KZMUtilities/resources.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/shared.h>
#include <KZMUtilities/text.h>
#include <KZMUtilities/time_items.h>
#include <KZMUtilities/value.h>
#include <KZMUtilities/weather.h>
#include <KZMUtilities/widest_text.h>

#endif
