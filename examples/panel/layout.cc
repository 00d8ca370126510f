#include "layout.h"

#include <cstddef>

#include <KZMUtilities/text.h>

#include "lettering.h"
#include "shapes.h"
#include "styles.h"

namespace kzm::panel {
namespace {

// All in points.
constexpr double kMargin = 28.0;
constexpr double kColumnWidth = 250.0;
constexpr double kColumnGap = 32.0;
constexpr double kInnerWidth = 2.0 * kColumnWidth + kColumnGap;
constexpr double kWidth = 2.0 * kMargin + kInnerWidth;
constexpr double kCardCorner = 18.0;
constexpr double kHeadingBaseline = 24.0;  // from the margin
constexpr double kHeadingBar = 38.0;
constexpr double kHeadingHeight = 70.0;
constexpr double kRowPitch = 72.0;
constexpr double kRowHeight = 48.0;
constexpr double kBadgeSide = 38.0;
constexpr double kBadgeTop = 5.0;
constexpr double kBadgeCorner = 10.0;
constexpr double kIconSide = 24.0;
constexpr double kTextStart = kColumnWidth - kTextWidth;
constexpr double kLabelBaseline = 9.0;  // from the top of the row, as the two below
constexpr double kTextBaseline = 30.0;
constexpr double kBarTop = 40.0;
constexpr double kBarHeight = 8.0;
constexpr double kThinBarHeight = 5.0;

// How bright a badge is next to its row's color, and the upper end of a shade next to its lower one.
constexpr float kBadgeBrightness = 0.30F;
constexpr float kLitBrightness = 1.2F;

Color headingColor() { return Color::fromHSBA(0.60, 0.22, 0.80, 1.0); }

// One text at the start of the width and one at its end; the second is left out where both have no room.
void drawTexts(const Page& page, const Point& at, double width, const AttributedString& first,
               const AttributedString& last) {
  const Line start(isolated(first), page.mirrored);
  const Line end(isolated(last), page.mirrored);
  start.drawAt(page.place(rectOf(at.x, at.y, start.width(), 0.0)).origin);
  if (start.width() + kTextGap + end.width() > width) return;
  end.drawAt(page.place(rectOf(at.x + width - end.width(), at.y, end.width(), 0.0)).origin);
}

void drawHeading(const Page& page, const Heading& heading) {
  drawTexts(page, {kMargin, kMargin + kHeadingBaseline}, kInnerWidth, heading.clock, heading.day);
  drawBars(page, rectOf(kMargin, kMargin + kHeadingBar, kInnerWidth, kThinBarHeight), heading.hours, headingColor());
}

void drawIcon(const Page& page, const Point& at, const Row& row, double scale) {
  constexpr double kInset = (kBadgeSide - kIconSide) / 2.0;
  const Color badge = row.color.multiplyBrightness(kBadgeBrightness);
  fillRounded(page.place(rectOf(at.x, at.y, kBadgeSide, kBadgeSide)), kBadgeCorner,
              badge.multiplyBrightness(kLitBrightness), badge);
  iconImage(row.icon, kIconSide, scale)
      .tint(row.color)
      .drawAtPoint(page.place(rectOf(at.x + kInset, at.y + kInset, kIconSide, kIconSide)).origin);
}

void drawRow(const Page& page, const Point& at, double width, const Row& row, double scale) {
  const double start = at.x + kTextStart;
  drawIcon(page, {at.x, at.y + kBadgeTop}, row, scale);
  drawTexts(page, {start, at.y + kLabelBaseline}, width - kTextStart, row.main.label, row.side.label);
  drawTexts(page, {start, at.y + kTextBaseline}, width - kTextStart, row.main.value, row.side.value);
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
  const Shade card = cardShade();
  fillRounded(rectOf(0.0, 0.0, kWidth, height), kCardCorner, card.top, card.bottom);
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
