#include "icons.h"

#include <cairo.h>
#include <cstddef>
#include <numbers>
#include <span>

namespace kzm::panel {
namespace {

enum class Verb { move, line, curve, arc, box };

struct Mark {
  Verb verb;
  double v[6];
};

constexpr Mark move(double x, double y) { return {Verb::move, {x, y}}; }
constexpr Mark line(double x, double y) { return {Verb::line, {x, y}}; }
constexpr Mark curve(double x1, double y1, double x2, double y2, double x, double y) {
  return {Verb::curve, {x1, y1, x2, y2, x, y}};
}
// In full turns, clockwise from three o'clock.
constexpr Mark arc(double x, double y, double radius, double from, double to) {
  return {Verb::arc, {x, y, radius, from, to}};
}
constexpr Mark box(double x, double y, double width, double height) { return {Verb::box, {x, y, width, height}}; }

constexpr Mark kReceived[] = {move(7, 16.5),
                              arc(6.8, 12.6, 3.9, 0.25, 0.70),
                              arc(11.5, 9.5, 5.3, 0.53, 0.94),
                              arc(17.4, 12.7, 3.8, 0.73, 1.25),
                              move(12, 11.5),
                              line(12, 20.5),
                              move(8.8, 17.4),
                              line(12, 20.6),
                              line(15.2, 17.4)};
constexpr Mark kSent[] = {move(7, 16.5),
                          arc(6.8, 12.6, 3.9, 0.25, 0.70),
                          arc(11.5, 9.5, 5.3, 0.53, 0.94),
                          arc(17.4, 12.7, 3.8, 0.73, 1.25),
                          move(12, 20.5),
                          line(12, 11.5),
                          move(8.8, 14.7),
                          line(12, 11.5),
                          line(15.2, 14.7)};
constexpr Mark kRead[] = {box(3.5, 14, 17, 6.5), move(16.6, 17.25), line(16.7, 17.25), move(12, 10.5),
                          line(12, 3.5),         move(8.8, 6.6),    line(12, 3.4),     line(15.2, 6.6)};
constexpr Mark kWritten[] = {box(3.5, 14, 17, 6.5), move(16.6, 17.25), line(16.7, 17.25), move(12, 3.5),
                             line(12, 10.5),        move(8.8, 7.4),    line(12, 10.6),    line(15.2, 7.4)};
constexpr Mark kMemory[] = {box(3, 7, 18, 8.5), move(7.5, 10),    line(7.5, 12.5), move(12, 10),  line(12, 12.5),
                            move(16.5, 10),     line(16.5, 12.5), move(6, 16),     line(6, 18.5), move(10, 16),
                            line(10, 18.5),     move(14, 16),     line(14, 18.5),  move(18, 16),  line(18, 18.5)};
constexpr Mark kSpace[] = {
    move(4.5, 6.5),  curve(4.5, 2.8, 19.5, 2.8, 19.5, 6.5),    curve(19.5, 10.2, 4.5, 10.2, 4.5, 6.5),
    line(4.5, 17.5), curve(4.5, 21.2, 19.5, 21.2, 19.5, 17.5), line(19.5, 6.5),
    move(4.5, 12),   curve(4.5, 15.7, 19.5, 15.7, 19.5, 12)};
constexpr Mark kFrequency[] = {move(3, 12), curve(6.5, 0.5, 9, 2, 12, 12), curve(15, 22, 17.5, 23.5, 21, 12)};
constexpr Mark kTemperature[] = {arc(12, 17, 4, 0.84, 1.66), line(9.6, 5.4), arc(12, 5.4, 2.4, 0.5, 1.0),
                                 line(14.14, 13.8),          move(12, 17),   line(12, 9.5)};
constexpr Mark kBattery[] = {box(2.5, 7, 16.5, 10), move(22, 10.5),   line(22, 13.5),  move(6.5, 10.5),
                             line(6.5, 13.5),       move(10.5, 10.5), line(10.5, 13.5)};
// A quarter each.
constexpr Mark kLoad[] = {box(6, 6, 12, 12), box(10, 10, 4, 4), move(9.5, 2.8),
                          line(9.5, 5),      move(14.5, 2.8),   line(14.5, 5)};
constexpr Mark kFan[] = {arc(12, 12, 1.6, 0.0, 1.0), move(12, 10.2), curve(6.8, 9.2, 7.2, 3, 11.6, 2.8),
                         curve(15, 2.8, 15.6, 6.6, 13.4, 10.8)};

struct Drawing {
  std::span<const Mark> marks;
  int turns;  // how many times the marks are drawn around the middle
};

// In the order of Icon.
constexpr Drawing kDrawings[] = {
    {kReceived, 1}, {kSent, 1},      {kRead, 1},        {kWritten, 1}, {kMemory, 1},  {kSpace, 1},
    {kLoad, 4},     {kFrequency, 1}, {kTemperature, 1}, {kFan, 4},     {kBattery, 1},
};
static_assert(std::size(kDrawings) == static_cast<std::size_t>(Icon::battery) + 1);

constexpr double kGrid = 24.0;
constexpr double kLineWidth = 1.8;

void add(cairo_t* cairo, const Mark& mark) {
  constexpr double kTurn = 2.0 * std::numbers::pi;
  const auto& v = mark.v;
  switch (mark.verb) {
    case Verb::move:
      cairo_move_to(cairo, v[0], v[1]);
      break;
    case Verb::line:
      cairo_line_to(cairo, v[0], v[1]);
      break;
    case Verb::curve:
      cairo_curve_to(cairo, v[0], v[1], v[2], v[3], v[4], v[5]);
      break;
    case Verb::arc:
      cairo_arc(cairo, v[0], v[1], v[2], v[3] * kTurn, v[4] * kTurn);
      break;
    case Verb::box:
      cairo_rectangle(cairo, v[0], v[1], v[2], v[3]);
      break;
  }
}

void addTurned(cairo_t* cairo, const Drawing& drawing) {
  for (int turn = 0; turn < drawing.turns; ++turn) {
    for (const Mark& mark : drawing.marks) add(cairo, mark);
    cairo_new_sub_path(cairo);
    cairo_translate(cairo, kGrid / 2, kGrid / 2);
    cairo_rotate(cairo, 2.0 * std::numbers::pi / drawing.turns);
    cairo_translate(cairo, -kGrid / 2, -kGrid / 2);
  }
}

}  // namespace

Image iconImage(Icon icon, double side, double scale) {
  Image image(Size{side, side}, scale);
  const Image::Focus focus(image);
  cairo_t* cairo = GraphicsContext::current()->cairo();
  if (cairo == nullptr) return image;
  cairo_scale(cairo, side / kGrid, side / kGrid);
  cairo_set_line_width(cairo, kLineWidth);
  cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
  addTurned(cairo, kDrawings[static_cast<std::size_t>(icon)]);
  cairo_stroke(cairo);
  return image;
}

}  // namespace kzm::panel
