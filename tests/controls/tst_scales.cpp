#include "Stage.h"
#include "testing/Cases.h"

#include <algorithm>

using namespace tarnloft;

namespace {

// One colour for each pixel along a line through the middle, repeats left out.
QList<QColor> bands(const QImage& image, Qt::Orientation along) {
  QList<QColor> result;
  const int length = along == Qt::Horizontal ? image.width() : image.height();
  for (int i = 0; i < length; ++i) {
    const QColor color = along == Qt::Horizontal ? image.pixelColor(i, image.height() / 2)
                                                 : image.pixelColor(image.width() / 2, i);
    if (result.isEmpty() || result.constLast() != color) result << color;
  }
  return result;
}

// The part of the picture that isn't of the colour of its first pixel.
QRect content(const QImage& image) {
  QRect result;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != image.pixel(0, 0)) result |= QRect(x, y, 1, 1);
  return result;
}

int mostApart(const QImage& one, const QImage& other) {
  int most = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      most = std::max({most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                       std::abs(qBlue(a) - qBlue(b))});
    }
  return most;
}

}  // namespace

// Pixels; run at several scales of the screen and with both scene graphs.
class TestScales : public QObject {
  Q_OBJECT

 private slots:
  void edgesLieOnWholePixels() {
    const QColor hairline(0, 0, 0, 40);
    const Cases<QRectF, int, double, QColor> cases{
        {"small button", QRectF(13, 9, 47, 22), 5, 1.0, hairline},
        {"selected card", QRectF(33, 19, 151, 97), 10, 3.0, QColor(Qt::red)},
        {"capsule", QRectF(21, 23, 131, 33), 17, 1.0, hairline},
        {"dot", QRectF(15, 9, 17, 17), 9, 1.5, QColor(Qt::black)},
        {"half a point off", QRectF(10.5, 6.5, 83, 28), 6, 1.0, hairline}};
    cases.check([&](const QRectF& place, int radius, double edge, const QColor& edgeColor) {
      const QColor fill(76, 111, 255);
      Stage stage(QString("Rectangle { anchors.fill: parent; color: 'white'\n"
                          "RoundedRectangle { x: %1; y: %2; width: %3; height: %4; radius: %5\n"
                          "  color: '%6'; edgeWidth: %7; edgeColor: '%8' } }")
                      .arg(place.x())
                      .arg(place.y())
                      .arg(place.width())
                      .arg(place.height())
                      .arg(radius)
                      .arg(fill.name())
                      .arg(edge)
                      .arg(edgeColor.name(QColor::HexArgb)));
      QVERIFY(stage.ready());
      const QImage window = stage.window()->grabWindow().convertToFormat(QImage::Format_RGB32);
      const qreal ratio = stage.window()->effectiveDevicePixelRatio();
      const QRect found = content(window);
      QVERIFY(std::abs(found.width() - place.width() * ratio) <= 1);
      QVERIFY(std::abs(found.height() - place.height() * ratio) <= 1);
      QVERIFY(std::abs(found.x() - place.x() * ratio) <= 1);
      QVERIFY(std::abs(found.y() - place.y() * ratio) <= 1);

      const QImage shape = window.copy(found);
      QVERIFY2(mostApart(shape, shape.mirrored(true, false)) <= 12, "left and right differ");
      QVERIFY2(mostApart(shape, shape.mirrored(false, true)) <= 12, "above and below differ");
      // Edge, fill, edge, and nothing blurred between, where the sides are straight.
      if (place.height() > 2 * radius) QCOMPARE(bands(shape, Qt::Horizontal).size(), 3);
      if (place.width() > 2 * radius) QCOMPARE(bands(shape, Qt::Vertical).size(), 3);
      QCOMPARE(shape.pixelColor(shape.rect().center()), fill);
      if (radius > 2) QVERIFY(shape.pixelColor(0, 0).lightness() > 240);
    });
  }

  // Whether it is large enough to be pieced together or not: dark beside its caster, falling off
  // smoothly and alike on both sides.
  void shadowsFallOffEvenly() {
    const Cases<QSize> cases{{"large", QSize(200, 160)}, {"small", QSize(60, 50)}};
    cases.check([&](const QSize& size) {
      Stage stage(QString("Rectangle { anchors.fill: parent; color: 'white'\n"
                          "Shadow { anchors.fill: card; radius: 10; blur: 10; strength: 0.5 }\n"
                          "Rectangle { id: card; x: 80; y: 80; width: %1; height: %2; radius: 10\n"
                          "  color: 'black' } }")
                      .arg(size.width())
                      .arg(size.height()));
      QVERIFY(stage.ready());
      const qreal ratio = stage.window()->effectiveDevicePixelRatio();
      const QImage window = stage.window()->grabWindow().convertToFormat(QImage::Format_RGB32);
      const QImage shown =
          window.copy(QRect((QPointF(40, 40) * ratio).toPoint(), ((size + QSize(80, 80)) * ratio)));
      int before = 255;
      for (int x = 0; x < int(38 * ratio); ++x) {
        const int middle = shown.height() / 2;
        const int grey = qGray(shown.pixel(x, middle));
        QVERIFY2(grey <= before && before - grey <= 12, qPrintable(QString::number(x)));
        const int other = qGray(shown.pixel(shown.width() - 1 - x, middle));
        QVERIFY2(std::abs(grey - other) <= 16, qPrintable(QString::number(x)));
        before = grey;
      }
      QVERIFY2(before < 230, qPrintable(QString::number(before)));
    });
  }

  void emojiAreInColor() {
    const Cases<QString, QString> cases{{"in a text", "body", "R&D 🌿"},
                                        {"in a large text", "largeTitle", "R&D 🌿"},
                                        {"in code", "monospaced(12)", "R&D 🌿"},
                                        {"alone", "emoji(24)", "❤"}};
    cases.check([&](const QString& font, const QString& text) {
      Stage stage(QString("Label { font: Theme.%1; text: '%2' }").arg(font, text));
      const QImage shown = stage.window()->grabWindow();
      int colored = 0;
      for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 200; ++x)
          colored += shown.pixelColor(x, y).hsvSaturation() > 120 ? 1 : 0;
      QVERIFY2(colored > 20, qPrintable(QString::number(colored)));
    });
  }
};

QTEST_MAIN(TestScales)
#include "tst_scales.moc"
