#include "controls/symbols/SymbolFont.h"
#include "controls/symbols/SymbolTable.h"
#include "pictures/EmblemSymbols.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTest>

using namespace tarnloft;

namespace {

constexpr int kSize = 32;

QString text(std::u16string_view name) {
  return QString::fromUtf16(name.data(), static_cast<qsizetype>(name.size()));
}

// The symbol as the interface draws it: text of the symbol font, centred in a picture of that side.
QImage painted(char32_t glyph, int side = kSize) {
  QFont font(symbols::fontFamily());
  font.setPixelSize(kSize);
  QImage image(side, side, QImage::Format_Grayscale8);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setFont(font);
  painter.drawText(image.rect(), Qt::AlignCenter, QString::fromUcs4(&glyph, 1));
  return image;
}

int darkness(int x, int y, const QImage& image) { return 255 - image.constScanLine(y)[x]; }

int ink(const QImage& image) {
  int sum = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) sum += darkness(x, y, image);
  return sum;
}

}  // namespace

class SymbolsTest : public QObject {
  Q_OBJECT

 private slots:
  void everyNameLeadsToAGlyphOfTheFont() {
    const QRawFont font = QRawFont::fromFont(QFont(symbols::fontFamily()));
    QCOMPARE(font.familyName(), symbols::fontFamily());
    for (const auto& symbol : symbols::table()) {
      QCOMPARE(symbols::glyph(text(symbol.name)), std::optional(symbol.glyph));
      QVERIFY2(font.supportsCharacter(symbol.glyph), qPrintable(text(symbol.name)));
    }
    for (const char* name : {"", "Star.fill", "star.fil", "star.fill ", "zzz"}) {
      QVERIFY2(!symbols::glyph(QString::fromUtf8(name)), name);
    }
    for (const auto name : emblemSymbols()) {
      QVERIFY2(symbols::glyph(text(name)), qPrintable(text(name)));
    }
  }

  void everySymbolHasInkAndStaysInItsSquare() {
    for (const auto& symbol : symbols::table()) {
      const int inSquare = ink(painted(symbol.glyph));
      QVERIFY2(inSquare > 255 * kSize / 2, qPrintable(text(symbol.name)));
      const int everywhere = ink(painted(symbol.glyph, 2 * kSize));
      QVERIFY2(std::abs(everywhere - inSquare) <= everywhere / 50, qPrintable(text(symbol.name)));
    }
  }
};

QTEST_MAIN(SymbolsTest)
#include "tst_symbols.moc"
