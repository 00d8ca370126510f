// Where cairo is linked in, as in the static library, it is what draws.
#include "port/cairo_canvas.h"

namespace kzm::port {

const Canvas& canvas() { return *kzmCairoCanvas(); }

}  // namespace kzm::port
