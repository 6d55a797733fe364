#include "platform/desktop/images/VipsImages.h"
#include "testing/Cases.h"
#include "testing/Pictures.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QRandomGenerator>
#include <QTest>

using namespace tarnloft;

// The HEIC encoder keeps some memory of each picture; that is not for us to mend.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:libx265";
}

class TestImageExport : public QObject {
  Q_OBJECT

 private slots:
  void writesEachFormat() {
    const Cases<ExportFormat, QByteArray, int> cases{
        {"png", ExportFormat::png, "\x89PNG", 0},
        {"jpeg", ExportFormat::jpeg, "\xFF\xD8\xFF", 6},
        {"heic", ExportFormat::heic, "ftypheic", 12},
        {"tiff", ExportFormat::tiff, "II*", 0}};
    cases.check([&](ExportFormat format, const QByteArray& mark, int tolerance) {
      const QByteArray bytes = converted("chart.tif", format, Chart::size);
      QVERIFY(bytes.first(12).contains(mark));
      QVERIFY(differenceAtCells(seen(bytes, format), Chart::image()) <= tolerance);
    });
  }

  void hitsAnySizeExactly() {
    QVERIFY(
        differenceAtCells(QImage::fromData(converted("chart.tif", ExportFormat::png, {400, 30})),
                          Chart::image().scaled(400, 30)) <= 2);
    QList<QSize> sizes{{1, 1}, {1, 700}, {700, 1}, {64, 48}, {65, 48}, {63, 48}, {64, 1000}};
    auto* random = QRandomGenerator::global();
    while (sizes.size() < 37) sizes << QSize(random->bounded(1, 900), random->bounded(1, 900));
    for (const QSize size : sizes) {
      for (const char* fixture : {"chart.tif", "progressive.jpg", "clear.webp", "mark.svg"}) {
        QByteArray bytes = converted(fixture, ExportFormat::png, size);
        QBuffer buffer(&bytes);
        QCOMPARE(QImageReader(&buffer, "png").size(), size);
      }
    }
  }

  void putsWhiteUnderTransparencyForJpeg() {
    const QImage jpeg = QImage::fromData(converted("mark.svg", ExportFormat::jpeg, {80, 40}));
    QVERIFY(qGreen(jpeg.pixel(60, 20)) >= 253 && qBlue(jpeg.pixel(60, 20)) >= 253);
    QVERIFY(qRed(jpeg.pixel(20, 20)) >= 250 && qGreen(jpeg.pixel(20, 20)) <= 5);
    const QImage fading =
        QImage::fromData(converted("clear.webp", ExportFormat::jpeg, Chart::size));
    const QRgb blackCell = fading.pixel(3 * 16 + 8, 16 + 8);  // three quarters and a bit there
    QVERIFY(qAbs(qRed(blackCell) - 255 * 8 / 64) <= 12);
  }

  void keepsTransparencyElsewhere() {
    for (const ExportFormat format : {ExportFormat::png, ExportFormat::heic, ExportFormat::tiff}) {
      const QImage image = seen(converted("mark.svg", format, {80, 40}), format);
      QCOMPARE(qAlpha(image.pixel(60, 20)), 0);
      QVERIFY(qAlpha(image.pixel(20, 20)) >= 253);
    }
  }

  void doesNotTurn() {
    const QString path = disk_.path("turned.jpg");
    writeFile(path, turnedJpeg(Chart::image(2), 6));
    QCOMPARE(images_.thumbnail(path, 512)->size(), (Chart::size * 2).transposed());
    QByteArray bytes = *images_.convert(path, ExportFormat::jpeg, Chart::size * 2, 1);
    QBuffer result(&bytes);
    QImageReader reader(&result);
    reader.setAutoTransform(true);
    QVERIFY(differenceAtCells(reader.read(), Chart::image(2)) <= 12);
  }

  void tagsItsColours() {
    for (const ExportFormat format : {ExportFormat::png, ExportFormat::jpeg}) {
      QImage chart = Chart::image();
      chart.setColorSpace(QColorSpace::SRgb);
      chart.convertToColorSpace(QColorSpace::AdobeRgb);
      const QString path = disk_.path("wide.png");
      QVERIFY(chart.save(path));
      const auto bytes = images_.convert(path, format, Chart::size, 1);
      QVERIFY(bytes);
      const QImage image = QImage::fromData(*bytes);
      QCOMPARE(image.colorSpace().primaries(), QColorSpace::Primaries::SRgb);
      QVERIFY(differenceAtCells(image, Chart::image()) <= 8);
    }
  }

  void leavesTheSourcesMetadataBehind() {
    QImage chart = Chart::image();
    chart.setText("Author", "Somebody");
    const QString path = disk_.path("author.png");
    QVERIFY(chart.save(path));
    QVERIFY(contentOf(path).contains("Somebody"));
    for (const ExportFormat format : allCases<ExportFormat>()) {
      QVERIFY(!images_.convert(path, format, Chart::size, 1)->contains("Somebody"));
    }
  }

  void qualityCountsWhereColoursAreLost() {
    for (const ExportFormat format : allCases<ExportFormat>()) {
      const qsizetype coarse = converted("chart.webp", format, {640, 480}, 0.3).size();
      const qsizetype fine = converted("chart.webp", format, {640, 480}, 1).size();
      const bool counts = format == ExportFormat::jpeg || format == ExportFormat::heic;
      QVERIFY(counts ? coarse < fine : coarse == fine);
    }
  }

  void drawsVectorsSharply() {
    for (const char* fixture : {"mark.svg", "mark.pdf"}) {
      const QImage image = QImage::fromData(converted(fixture, ExportFormat::png, {1600, 800}));
      QCOMPARE(qAlpha(image.pixel(798, 400)), 255);
      QCOMPARE(qAlpha(image.pixel(801, 400)), 0);
    }
  }

  void refusesSizesBeyondAnyPicture() {
    for (const char* fixture : {"chart.tif", "mark.svg"}) {
      for (const QSize size :
           {QSize(0, 10), QSize(-1, 10), QSize(100'000, 100'000), QSize(2'000'000'000, 1)}) {
        QVERIFY(converted(fixture, ExportFormat::jpeg, size).isEmpty());
      }
    }
  }

 private:
  QByteArray converted(const char* fixture, ExportFormat format, QSize size, double quality = 1) {
    return images_.convert(pictureFixture(fixture), format, size, quality).value_or(QByteArray());
  }
  // As another reader sees the bytes: the toolkit, or for what it doesn't read the library anew.
  QImage seen(const QByteArray& bytes, ExportFormat format) {
    if (format == ExportFormat::png || format == ExportFormat::jpeg) return QImage::fromData(bytes);
    const QString path = disk_.path("seen");
    writeFile(path, bytes);
    return images_.thumbnail(path, 4096).value_or(QImage());
  }

  TestServices disk_;
  VipsImages images_{QStringLiteral(VECTOR_PROGRAM)};
};

QTEST_GUILESS_MAIN(TestImageExport)
#include "tst_imageexport.moc"
