#include "lettering.h"

#include <cmath>
#include <pango/pangocairo.h>
#include <unicode/uloc.h>

#include "styles.h"

namespace kzm::panel {
namespace {

constexpr const char* kFont = "sans-serif";

guint16 channel(double component) { return static_cast<guint16>(std::lround(component * 65535.0)); }

void insert(PangoAttrList* list, PangoAttribute* attribute, std::size_t begin, std::size_t end) {
  attribute->start_index = static_cast<guint>(begin);
  attribute->end_index = static_cast<guint>(end);
  pango_attr_list_insert(list, attribute);
}

// A run that carries no style of the panel keeps the font as it is.
PangoAttrList* attributesOf(const AttributedString& text) {
  PangoAttrList* list = pango_attr_list_new();
  std::size_t begin = 0;
  for (const AttributedString::Run& run : text.runs()) {
    const std::size_t end = begin + run.text.size();
    if (const auto* style = dynamic_cast<const TextStyle*>(run.attributes.object()); style != nullptr) {
      const Color& color = style->color;
      insert(list, pango_attr_size_new_absolute(static_cast<int>(style->size * PANGO_SCALE)), begin, end);
      insert(list, pango_attr_weight_new(style->bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL), begin, end);
      insert(list, pango_attr_foreground_new(channel(color.red()), channel(color.green()), channel(color.blue())),
             begin, end);
    }
    begin = end;
  }
  return list;
}

// Shapes are the same at every scale: no hints move them onto pixels.
void useExactShapes(PangoContext* context) {
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  pango_cairo_context_set_font_options(context, options);
  cairo_font_options_destroy(options);
  pango_context_set_round_glyph_positions(context, FALSE);
}

cairo_t* currentCairo() { return GraphicsContext::current()->cairo(); }

}  // namespace

bool isRightToLeft(const std::string& locale) { return uloc_isRightToLeft(locale.c_str()) != 0; }

void Line::Release::operator()(PangoLayout* layout) const { g_object_unref(layout); }

Line::Line(const AttributedString& text, bool rightToLeft) : layout_(pango_cairo_create_layout(currentCairo())) {
  PangoContext* context = pango_layout_get_context(layout_.get());
  useExactShapes(context);
  // The first letter of a line may be one of a unit, and says nothing of the line.
  pango_layout_set_auto_dir(layout_.get(), FALSE);
  pango_context_set_base_dir(context, rightToLeft ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR);

  PangoFontDescription* font = pango_font_description_from_string(kFont);
  pango_layout_set_font_description(layout_.get(), font);
  pango_font_description_free(font);

  PangoAttrList* attributes = attributesOf(text);
  pango_layout_set_text(layout_.get(), text.text().c_str(), -1);
  pango_layout_set_attributes(layout_.get(), attributes);
  pango_attr_list_unref(attributes);
}

double Line::width() const {
  PangoRectangle logical;
  pango_layout_get_extents(layout_.get(), nullptr, &logical);
  return pango_units_to_double(logical.width);
}

int Line::missingGlyphs() const { return pango_layout_get_unknown_glyphs_count(layout_.get()); }

void Line::drawAt(const Point& point) const {
  cairo_t* cairo = currentCairo();
  PangoLayoutLine* line = pango_layout_get_line_readonly(layout_.get(), 0);
  cairo_move_to(cairo, point.x, point.y);
  pango_cairo_show_layout_line(cairo, line);
}

}  // namespace kzm::panel
