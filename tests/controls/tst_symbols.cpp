#include "controls/symbols/SymbolFont.h"
#include "controls/symbols/SymbolTable.h"
#include "pictures/EmblemSymbols.h"
#include "testing/Cases.h"

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <set>
#include <vector>

using namespace tarnloft;

namespace {

constexpr int kSize = 32;

QString text(std::u16string_view name) {
  return QString::fromUtf16(name.data(), static_cast<qsizetype>(name.size()));
}

char32_t glyphOf(QStringView name) { return symbols::glyph(name).value_or(0); }

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

// From 0, alike, to 2, with no point in common.
double difference(const QImage& one, const QImage& other) {
  int sum = 0;
  for (int y = 0; y < kSize; ++y)
    for (int x = 0; x < kSize; ++x) sum += std::abs(darkness(x, y, one) - darkness(x, y, other));
  return static_cast<double>(sum) / std::max(ink(one), ink(other));
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
  }

  void theFontHoldsNothingElse() {
    std::set<char32_t> used;
    for (const auto& symbol : symbols::table()) used.insert(symbol.glyph);
    const QByteArray profile = QRawFont::fromFont(QFont(symbols::fontFamily())).fontTable("maxp");
    QCOMPARE(qFromBigEndian<quint16>(profile.constData() + 4),
             used.size() + 1);  // one for the unknown
  }

  void otherNamesLeadToNone() {
    for (const char* name : {"", "star", "Star.fill", "star.fil", "star.fill.", "star.fill ", "a",
                             "zzz", "star-circle", "ａtom", "\xf0\x9f\x94\xa5"}) {
      QVERIFY2(!symbols::glyph(QString::fromUtf8(name)), name);
    }
  }

  void aNameMayBePartOfALongerText() {
    const QString longer = "(leaf.fill)";
    QCOMPARE(symbols::glyph(QStringView(longer).mid(1, 9)), symbols::glyph(u"leaf.fill"));
    QVERIFY(!symbols::glyph(QStringView()));
  }

  void thePickerOffersKnownNamesOnceEach() {
    const auto names = emblemSymbols();
    QCOMPARE(names.size(), size_t{262});
    QCOMPARE(std::set(names.begin(), names.end()).size(), names.size());
    for (const auto name : names) QVERIFY2(symbols::glyph(text(name)), qPrintable(text(name)));
  }

  void noTwoSymbolsOfThePickerLookAlike() {
    const auto names = emblemSymbols();
    std::vector<QImage> images;
    for (const auto name : names) images.push_back(painted(glyphOf(text(name))));
    for (size_t i = 0; i < images.size(); ++i) {
      for (size_t j = 0; j < i; ++j) {
        const double apart = difference(images[i], images[j]);
        const QString told = QString("%1, %2: %3").arg(text(names[i]), text(names[j])).arg(apart);
        QVERIFY2(apart > 0.05, qPrintable(told));
      }
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

  void mirroredNamesAreMirrored() {
    const Cases<QString, QString> cases{{"chevrons", "chevron.left", "chevron.right"},
                                        {"transport", "backward.fill", "forward.fill"},
                                        {"laurels", "laurel.leading", "laurel.trailing"},
                                        {"pin, itself", "pin.fill", "pin.fill"},
                                        {"ant, itself", "ant.fill", "ant.fill"}};
    cases.check([&](const QString& left, const QString& right) {
      const double apart =
          difference(painted(glyphOf(left)).mirrored(true, false), painted(glyphOf(right)));
      QVERIFY2(apart < 0.1, qPrintable(QString::number(apart)));
    });
  }
};

QTEST_MAIN(SymbolsTest)
#include "tst_symbols.moc"
