// The current context of each thread, and the two colors that cairo, with its single source, does not keep.
#include <memory>
#include <utility>

#include <KZMUtilities/drawing.h>

#include "port/canvas.h"
#include "port/per_thread.h"

namespace kzm {
namespace {

std::unique_ptr<GraphicsContext>& currentContext() { return port::perThread<std::unique_ptr<GraphicsContext>>(); }

}  // namespace

struct GraphicsContext::State {
  State(cairo_t* context, bool yGrowsDown)
      : cairo(context ? port::canvas().kept(context) : nullptr), isFlipped(yGrowsDown) {}

  port::Context cairo;
  bool isFlipped;
  Color fill;
  Color stroke;
};

GraphicsContext::GraphicsContext(cairo_t* cairo, bool flipped) : state_(std::make_shared<State>(cairo, flipped)) {}

std::optional<GraphicsContext> GraphicsContext::current() {
  return currentContext() ? std::optional(*currentContext()) : std::nullopt;
}

GraphicsContext::Current GraphicsContext::makeCurrent() const { return Current(*this); }

cairo_t* GraphicsContext::cairo() const noexcept { return state_->cairo.get(); }
bool GraphicsContext::isFlipped() const noexcept { return state_->isFlipped; }
Color GraphicsContext::fillColor() const noexcept { return state_->fill; }
Color GraphicsContext::strokeColor() const noexcept { return state_->stroke; }
void GraphicsContext::setFillColor(const Color& color) const noexcept { state_->fill = color; }
void GraphicsContext::setStrokeColor(const Color& color) const noexcept { state_->stroke = color; }

GraphicsContext::Current::Current(const GraphicsContext& context)
    : previous_(std::exchange(currentContext(), std::make_unique<GraphicsContext>(context))) {}

GraphicsContext::Current::~Current() { currentContext() = std::move(previous_); }

}  // namespace kzm
