#include "Stage.h"
#include "controls/drawing/ShadowProvider.h"
#include "testing/Cases.h"

#include <QGuiApplication>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)

using namespace tarnloft;

// What is drawn in C++: checkerboards, dashes and shadows.
class TestPictures : public QObject {
  Q_OBJECT

 private slots:
  void theCheckerboardHasItsTwoGreys() {
    Stage stage("Checkerboard { width: 64; height: 40; cell: 8 }");
    const QImage shown = stage.window()->grabWindow();
    for (const QPoint cell :
         {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(7, 4), QPoint(6, 3)}) {
      const int grey = qRound((cell.x() + cell.y()) % 2 == 0 ? 0.9 * 255 : 0.72 * 255);
      QCOMPARE(shown.pixelColor(cell * 8 + QPoint(4, 4)), QColor(grey, grey, grey));
    }
  }

  void theShadowFadesFromItsCaster() {
    QSize size;
    const QImage image = ShadowProvider().requestImage("10/12/50/0/0/100", &size, {});
    QCOMPARE(image.size(), size);
    QCOMPARE(size.width(),
             ShadowProvider::stretchableSide(10, 12) + 2 * ShadowProvider::extent(12));
    const int middle = size.width() / 2;
    QVERIFY(std::abs(qAlpha(image.pixel(middle, middle)) - 127) <= 2);
    QVERIFY(qAlpha(image.pixel(middle, 0)) <= 2);
    for (int x = 1; x <= middle; ++x)
      QVERIFY(qAlpha(image.pixel(x, middle)) >= qAlpha(image.pixel(x - 1, middle)) - 1);
    const QImage turned = image.mirrored(true, true);
    for (int y = 0; y < size.height(); y += 7)
      for (int x = 0; x < size.width(); x += 5)
        QVERIFY(std::abs(qAlpha(image.pixel(x, y)) - qAlpha(turned.pixel(x, y))) <= 1);
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

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
