// Draws typical readings in some languages, each as a card: kzm_strings_picture FILE.png LANGUAGE...
#include <algorithm>
#include <cstddef>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <KZMUtilities/drawing.h>
#include <KZMUtilities/text.h>

#include "cli/languages/coverage.h"
#include "examples/panel/lettering.h"
#include "examples/panel/shapes.h"
#include "examples/panel/styles.h"
#include "tools/strings/page/readings.h"

namespace kzm::strings {
namespace {

using panel::Line;
using panel::Page;
using panel::rectOf;

struct Card {
  cli::Coverage language;
  std::vector<std::string> lines;
};

// All in points.
constexpr std::size_t kColumns = 3;
constexpr double kCardWidth = 300.0;
constexpr double kCardHeight = 168.0;
constexpr double kGap = 12.0;
constexpr double kMargin = 18.0;
constexpr double kTitleBaseline = 30.0;
constexpr double kFirstBaseline = 56.0;
constexpr double kPitch = 20.0;
constexpr double kCorner = 14.0;
constexpr double kScale = 2.0;

// As many texts as have room, in one line.
std::string joined(const std::vector<std::string>& texts, std::size_t first, std::size_t count) {
  std::string line;
  for (std::size_t i = first; i < std::min(first + count, texts.size()); ++i) {
    line += (line.empty() ? "" : "  ·  ") + isolated(texts[i]);
  }
  return line;
}

std::vector<std::string> linesOf(const std::vector<Sample>& samples) {
  const auto texts = [&](const char* family) -> const std::vector<std::string>& {
    return std::ranges::find(samples, family, &Sample::family)->texts;
  };
  return {joined(texts("words"), 0, 3),   joined(texts("network"), 0, 2), joined(texts("disks"), 0, 2),
          joined(texts("sensors"), 0, 3), joined(texts("weather"), 0, 3), joined(texts("weather"), 7, 3)};
}

// The place of the line's left end, at the side where writing starts.
Point startOf(const Page& page, const Point& card, const Line& line, double baseline) {
  const Rect place = page.place(rectOf(kMargin, baseline, line.width(), 0.0));
  return {card.x + place.origin.x, card.y + baseline};
}

void drawText(const Page& page, const Point& card, double baseline, const std::string& text, const Value& style) {
  const Line line(AttributedString(text, style), page.mirrored);
  line.drawAt(startOf(page, card, line, baseline));
}

void drawCard(const Card& card, const Point& at) {
  const Page page{kCardWidth, panel::isRightToLeft(std::string(card.language.language))};
  const panel::Shade shade = panel::cardShade();
  panel::fillRounded(rectOf(at.x, at.y, kCardWidth, kCardHeight), kCorner, shade.top, shade.bottom);
  const std::string title = isolated(card.language.name) + "  " + isolated(card.language.language);
  drawText(page, at, kTitleBaseline, title, panel::style(15.0, true, 1.0F));
  double baseline = kFirstBaseline;
  for (const std::string& line : card.lines) {
    drawText(page, at, baseline, line, panel::style(12.0, false, 0.80F));
    baseline += kPitch;
  }
}

Image draw(const std::vector<Card>& cards) {
  const std::size_t lines = (cards.size() + kColumns - 1) / kColumns;
  const auto rows = static_cast<double>(lines);
  const auto columns = static_cast<double>(kColumns);
  Image picture(Size{columns * (kCardWidth + kGap) - kGap, rows * (kCardHeight + kGap) - kGap}, kScale);
  const Image::Focus focus(picture);
  for (std::size_t i = 0; i < cards.size(); ++i) {
    const std::size_t line = i / kColumns;
    const std::size_t column = i % kColumns;
    drawCard(cards[i],
             {static_cast<double>(column) * (kCardWidth + kGap), static_cast<double>(line) * (kCardHeight + kGap)});
  }
  return picture;
}

int run(const std::string& file, const std::vector<std::string>& languages) {
  const std::vector<cli::Coverage> all = cli::coverages();
  std::vector<Card> cards;
  for (const std::string& language : languages) {
    const auto found = std::ranges::find(all, language, &cli::Coverage::language);
    if (found == all.end()) {
      std::cerr << "kzm_strings_picture: there is no language \"" << language << "\"\n";
      return 1;
    }
    cards.push_back({*found, linesOf(samplesIn(language))});
  }
  if (draw(cards).writePNG(file)) return 0;
  std::cerr << "kzm_strings_picture: cannot write \"" << file << "\"\n";
  return 1;
}

}  // namespace
}  // namespace kzm::strings

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: kzm_strings_picture FILE.png LANGUAGE...\n";
    return 2;
  }
  try {
    return kzm::strings::run(argv[1], {argv + 2, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << "kzm_strings_picture: " << error.what() << '\n';
    return 1;
  }
}
