// A live panel with Qt 6 and QML, in the language that the environment asks for.
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQuickView>
#include <QTimer>
#include <QVariantMap>
#include <string_view>

#include "readings.h"

namespace {

using namespace kzm::live;

QString toQt(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

QFont textFont() {
  QFont font = QGuiApplication::font();
  font.setPixelSize(18);
  return font;
}

// Readings never move the columns: there is room for the widest text.
double widest() {
  const QFontMetricsF metrics(textFont());
  const auto measure = [&](std::string_view text) { return metrics.horizontalAdvance(toQt(text)); };
  double width = 0.0;
  for (std::size_t i = 0; i < kRows; ++i) width = std::max(width, measure(widestOf(i, measure)));
  return width;
}

// The panel's QML shows the properties "clock" and "rows", a list of label and text.
void refresh(QQmlContext& context, Readings& readings) {
  const auto texts = readings.next();
  QVariantList rows;
  for (std::size_t i = 0; i < kRows; ++i) {
    rows.append(QVariantMap{{"label", toQt(labelOf(i))}, {"text", toQt(texts[i])}});
  }
  context.setContextProperty("clock", toQt(timeText()));
  context.setContextProperty("rows", rows);
}

}  // namespace

int main(int count, char** arguments) {
  QGuiApplication application(count, arguments);
  QGuiApplication::setLayoutDirection(isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);

  QQuickView view;
  Readings readings;
  QQmlContext& context = *view.rootContext();
  context.setContextProperty("textFont", textFont());
  context.setContextProperty("textWidth", widest());
  refresh(context, readings);
  view.setColor("#191c25");
  view.setSource(QUrl("qrc:/panel.qml"));
  view.show();

  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &view, [&] { refresh(context, readings); });
  timer.start(1000);
  return QGuiApplication::exec();
}
