// The canvas that draws with cairo: a module beside the shared library, and a part of the static one.
#ifndef KZM_PORT_CAIRO_CANVAS_H
#define KZM_PORT_CAIRO_CANVAS_H

#include <KZMUtilities/export.h>

#include "port/canvas.h"

/// A C name, by which the module is asked for it. Never destroyed.
extern "C" [[nodiscard]] KZM_EXPORT const kzm::port::Canvas* kzmCairoCanvas();

#endif
