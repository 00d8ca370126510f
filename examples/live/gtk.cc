// A live panel with GTK 4, in the language that the environment asks for.
#include <array>
#include <cstddef>
#include <gtk/gtk.h>
#include <string>
#include <string_view>

#include "readings.h"

namespace {

using namespace kzm::live;

constexpr const char* kStyle =
    "window { background: #191c25; color: #e3e7ee; }"
    "grid { margin: 24px; }"
    ".clock { font-size: 28px; font-weight: bold; margin-bottom: 12px; }"
    ".label { color: #9aa5b6; }"
    ".text { font-size: 18px; font-feature-settings: \"tnum\"; }";

GtkLabel* addLabel(GtkGrid* grid, const char* style, int column, int row, float alignment) {
  GtkWidget* label = gtk_label_new(nullptr);
  gtk_widget_add_css_class(label, style);
  gtk_label_set_xalign(GTK_LABEL(label), alignment);
  gtk_grid_attach(grid, label, column, row, 1, 1);
  return GTK_LABEL(label);
}

// The width of a text in the label's own font.
double widthIn(GtkLabel* label, std::string_view text) {
  PangoLayout* layout = gtk_widget_create_pango_layout(GTK_WIDGET(label), std::string(text).c_str());
  int width = 0;
  pango_layout_get_pixel_size(layout, &width, nullptr);
  g_object_unref(layout);
  return width;
}

class Panel {
 public:
  explicit Panel(GtkApplication* application) : window_(GTK_WINDOW(gtk_application_window_new(application))) {
    auto* grid = GTK_GRID(gtk_grid_new());
    gtk_grid_set_column_spacing(grid, 32);
    gtk_grid_set_row_spacing(grid, 6);
    gtk_window_set_child(window_, GTK_WIDGET(grid));
    clock_ = addLabel(grid, "clock", 0, 0, 0.0F);
    for (std::size_t i = 0; i < kRows; ++i) {
      const int row = static_cast<int>(i) + 1;
      gtk_label_set_text(addLabel(grid, "label", 0, row, 0.0F), labelOf(i).c_str());
      texts_[i] = addLabel(grid, "text", 1, row, 1.0F);
    }
    gtk_window_present(window_);
    keepWidths();
    refresh();
  }

  void refresh() {
    gtk_label_set_text(clock_, timeText().c_str());
    const std::array<std::string, kRows> texts = readings_.next();
    for (std::size_t i = 0; i < kRows; ++i) gtk_label_set_text(texts_[i], texts[i].c_str());
  }

 private:
  // Readings never move the columns: each has room for its widest text.
  void keepWidths() {
    for (std::size_t i = 0; i < kRows; ++i) {
      const auto measure = [label = texts_[i]](std::string_view text) { return widthIn(label, text); };
      const double width = measure(widestOf(i, measure));
      gtk_widget_set_size_request(GTK_WIDGET(texts_[i]), static_cast<int>(width), -1);
    }
  }

  GtkWindow* window_;
  GtkLabel* clock_ = nullptr;
  std::array<GtkLabel*, kRows> texts_ = {};
  Readings readings_;
};

gboolean onSecond(gpointer panel) {
  static_cast<Panel*>(panel)->refresh();
  return G_SOURCE_CONTINUE;
}

void onActivate(GtkApplication* application, gpointer /*data*/) {
  GtkCssProvider* style = gtk_css_provider_new();
#if GTK_CHECK_VERSION(4, 12, 0)
  gtk_css_provider_load_from_string(style, kStyle);
#else
  gtk_css_provider_load_from_data(style, kStyle, -1);
#endif
  gtk_style_context_add_provider_for_display(gdk_display_get_default(), GTK_STYLE_PROVIDER(style),
                                             GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  g_object_unref(style);
  gtk_widget_set_default_direction(isRightToLeft() ? GTK_TEXT_DIR_RTL : GTK_TEXT_DIR_LTR);
  static Panel panel(application);
  g_timeout_add_seconds(1, onSecond, &panel);
}

}  // namespace

int main(int count, char** arguments) {
  GtkApplication* application = gtk_application_new(nullptr, G_APPLICATION_NON_UNIQUE);
  g_signal_connect(application, "activate", G_CALLBACK(onActivate), nullptr);
  const int status = g_application_run(G_APPLICATION(application), count, arguments);
  g_object_unref(application);
  return status;
}
