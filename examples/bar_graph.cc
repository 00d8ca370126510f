// Draws a small bar graph, with a tinted icon next to it, into the named file: bar_graph [FILE.png]
#include <cstdio>

#include <KZMUtilities/drawing.h>

int main(int count, char** arguments) {
  const char* file = count > 1 ? arguments[1] : "bar_graph.png";
  const kzm::Color blue = kzm::Color::fromHSBA(0.58, 0.8, 0.9, 1.0);
  const kzm::Image icon(kzm::Size{16, 16}, 2.0);
  {
    const kzm::Image::Focus focus(icon);
    const kzm::Point corner{2, 2};
    const kzm::Size size{12, 12};
    kzm::barGraphWithRectFill({corner, size}, kzm::Color());
  }
  const kzm::Image picture(kzm::Size{120, 48}, 2.0);
  {
    const kzm::Image::Focus focus(picture);
    double x = 8.0;
    for (const double load : {0.2, 0.45, 0.9, 0.7, 0.35, 0.6}) {
      const kzm::Point corner{x, 40.0 - 32.0 * load};
      const kzm::Size size{8.0, 32.0 * load};
      const kzm::Rect bar{corner, size};
      kzm::barGraphWithRectFill(bar, blue);
      kzm::barGraphWithRectBorder(bar, blue.multiplyBrightness(0.6F));
      x += 12.0;
    }
    icon.tint(blue).drawAtPoint({x + 8.0, 8.0});
  }
  const bool written = picture.writePNG(file);
  std::printf("%s %s\n", written ? "wrote" : "could not write", file);
  return written ? 0 : 1;
}
