#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRect>

namespace tarnloft {

// Lets the program draw without a display, unless the caller chose one. Before the application is
// made.
inline void useNoDisplay() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
}

inline QRect inkOf(const QImage& picture) {
  QRect ink;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (qGray(picture.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

constexpr int drawnEm = 200;  // pixels

// Where ink falls when "A" is drawn at (0, em).
inline QRect drawnBox(const QString& family, QFont::Weight weight = QFont::Normal) {
  QFont font;
  font.setFamilies({family});
  font.setPixelSize(drawnEm);
  font.setWeight(weight);
  QImage picture(2 * drawnEm, 2 * drawnEm, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setFont(font);
  painter.drawText(QPointF(0, drawnEm), "A");
  painter.end();
  return inkOf(picture);
}

// The same of a font of the fixtures, whose "A" is a box so many thousandths of the em wide.
inline QRect boxOfWidth(int width) {
  return {drawnEm / 10, drawnEm * 3 / 10, width * drawnEm / 1000, drawnEm * 7 / 10};
}

}  // namespace tarnloft
