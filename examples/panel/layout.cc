#include "layout.h"

#include <cstddef>

#include "lettering.h"
#include "shapes.h"

namespace kzm::panel {
namespace {

// All in points.
constexpr double kMargin = 28.0;
constexpr double kColumnWidth = 232.0;
constexpr double kColumnGap = 32.0;
constexpr double kInnerWidth = 2.0 * kColumnWidth + kColumnGap;
constexpr double kWidth = 2.0 * kMargin + kInnerWidth;
constexpr double kCardCorner = 18.0;
constexpr double kHeadingBaseline = 24.0;  // from the margin
constexpr double kHeadingBar = 38.0;
constexpr double kHeadingHeight = 70.0;
constexpr double kRowPitch = 60.0;
constexpr double kRowHeight = 38.0;
constexpr double kBadgeCorner = 10.0;
constexpr double kIconSide = 24.0;
constexpr double kTextStart = kRowHeight + 14.0;
constexpr double kTextBaseline = 17.0;  // from the top of the row
constexpr double kTextGap = 8.0;        // at least, between the two texts of a row
constexpr double kBarTop = 28.0;
constexpr double kBarHeight = 8.0;
constexpr double kThinBarHeight = 5.0;

// How bright a badge is next to its row's colour, and the upper end of a shade next to its lower one.
constexpr float kBadgeBrightness = 0.30F;
constexpr float kLitBrightness = 1.2F;

Color cardColor() { return Color::fromHSBA(0.62, 0.32, 0.13, 1.0); }
Color headingColor() { return Color::fromHSBA(0.60, 0.22, 0.80, 1.0); }

// One text at the start of the width and one at its end; the second is left out where both have no room.
void drawTexts(const Page& page, const Point& at, double width, const AttributedString& first,
               const AttributedString& last) {
  const Line start(first, page.mirrored);
  const Line end(last, page.mirrored);
  start.drawAt(page.place(rectOf(at.x, at.y, start.width(), 0.0)).origin);
  if (start.width() + kTextGap + end.width() > width) return;
  end.drawAt(page.place(rectOf(at.x + width - end.width(), at.y, end.width(), 0.0)).origin);
}

void drawHeading(const Page& page, const Heading& heading) {
  drawTexts(page, {kMargin, kMargin + kHeadingBaseline}, kInnerWidth, heading.clock, heading.day);
  drawBars(page, rectOf(kMargin, kMargin + kHeadingBar, kInnerWidth, kThinBarHeight), heading.hours, headingColor());
}

void drawIcon(const Page& page, const Point& at, const Row& row, double scale) {
  constexpr double kInset = (kRowHeight - kIconSide) / 2.0;
  const Color badge = row.color.multiplyBrightness(kBadgeBrightness);
  fillRounded(page.place(rectOf(at.x, at.y, kRowHeight, kRowHeight)), kBadgeCorner,
              badge.multiplyBrightness(kLitBrightness), badge);
  iconImage(row.icon, kIconSide, scale)
      .tint(row.color)
      .drawAtPoint(page.place(rectOf(at.x + kInset, at.y + kInset, kIconSide, kIconSide)).origin);
}

void drawRow(const Page& page, const Point& at, double width, const Row& row, double scale) {
  const double start = at.x + kTextStart;
  drawIcon(page, at, row, scale);
  drawTexts(page, {start, at.y + kTextBaseline}, width - kTextStart, row.value, row.detail);
  drawBars(page, rectOf(start, at.y + kBarTop, width - kTextStart, kBarHeight), row.levels, row.color);
}

double lineTop(std::size_t line) { return kMargin + kHeadingHeight + static_cast<double>(line) * kRowPitch; }

}  // namespace

Image drawPanel(const Heading& heading, const std::vector<Row>& rows, bool rightToLeft, double scale) {
  const std::size_t lines = (rows.size() + 1) / 2;
  const double height = lineTop(lines) - (kRowPitch - kRowHeight) + kMargin;
  Image picture(Size{kWidth, height}, scale);
  if (picture.size() == Size{}) return picture;

  const Image::Focus focus(picture);
  const Page page{kWidth, rightToLeft};
  fillRounded(rectOf(0.0, 0.0, kWidth, height), kCardCorner, cardColor().multiplyBrightness(kLitBrightness),
              cardColor());
  drawHeading(page, heading);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t line = i / 2;
    const bool isFirst = i == 2 * line;
    const bool isAlone = isFirst && i + 1 == rows.size();
    const Point at{kMargin + (isFirst ? 0.0 : kColumnWidth + kColumnGap), lineTop(line)};
    drawRow(page, at, isAlone ? kInnerWidth : kColumnWidth, rows[i], scale);
  }
  return picture;
}

}  // namespace kzm::panel
