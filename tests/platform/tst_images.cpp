#include "platform/desktop/VipsImages.h"
#include "testing/Pictures.h"

#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>
#include <QTest>

#include <thread>

using namespace tarnloft;

namespace {

// The chart with a transparency that grows to the right, as the fixtures have it.
QImage clearChart() {
  QImage chart = Chart::image().convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < chart.height(); ++y) {
    for (int x = 0; x < chart.width(); ++x) {
      const QRgb color = chart.pixel(x, y);
      chart.setPixel(x, y,
                     qRgba(qRed(color), qGreen(color), qBlue(color), 255 * x / chart.width()));
    }
  }
  return chart;
}

// A JPEG with the tag that tells how to turn it.
QByteArray turnedJpeg(const QImage& image, char orientation) {
  QByteArray jpeg;
  QBuffer buffer(&jpeg);
  QImageWriter(&buffer, "jpeg").write(image);
  QByteArray tag(
      "\xFF\xE1\x00\x22"
      "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0",
      28);
  tag += orientation + QByteArray(7, '\0');
  return jpeg.insert(2, tag);
}

}  // namespace

class TestImages : public QObject {
  Q_OBJECT

 private slots:
  void readsEachKind_data() {
    QTest::addColumn<bool>("isClear");
    QTest::addColumn<int>("tolerance");
    QTest::newRow("chart.tif") << false << 0;
    QTest::newRow("end.tif") << false << 0;
    QTest::newRow("deep.tif") << false << 1;
    QTest::newRow("lab.tif") << false << 1;
    QTest::newRow("chart.webp") << false << 24;
    QTest::newRow("chart.heic") << false << 24;
    QTest::newRow("chart.avif") << false << 24;
    QTest::newRow("progressive.jpg") << false << 24;
    QTest::newRow("clear.webp") << true << 2;
    QTest::newRow("clear.heic") << true << 12;
    QTest::newRow("interlaced.png") << true << 2;
  }

  void readsEachKind() {
    QFETCH(bool, isClear);
    QFETCH(int, tolerance);
    const QString path = pictureFixture(QTest::currentDataTag());
    const auto properties = images_.properties(path);
    QVERIFY(properties);
    QCOMPARE(properties->size, Chart::size);
    QCOMPARE(properties->hasAlpha, isClear);
    QVERIFY(!images_.vectorSize(path));
    const auto thumbnail = images_.thumbnail(path, 512);
    QVERIFY(thumbnail);
    QCOMPARE(thumbnail->hasAlphaChannel(), isClear);
    const int difference = differenceAtCells(*thumbnail, isClear ? clearChart() : Chart::image());
    QVERIFY2(difference <= tolerance, qPrintable(QString::number(difference)));
  }

  void readsAsTheToolkitDoes() {
    for (const char* name : {"chart.gif", "gray.jpg", "interlaced.png"}) {
      const QString path = pictureFixture(name);
      const auto thumbnail = images_.thumbnail(path, 512);
      QVERIFY(thumbnail);
      QVERIFY(differenceAtCells(*thumbnail, QImage(path)) <= 1);
      QCOMPARE(images_.properties(path)->hasAlpha, QImage(path).hasAlphaChannel());
    }
  }

  void readsEachDepth_data() {
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("format");
    const auto row = [](const char* suffix, QImage::Format format) {
      QTest::addRow("%s %d", suffix, format) << QString::fromLatin1(suffix) << int(format);
    };
    for (const auto format : {QImage::Format_RGB32, QImage::Format_Indexed8, QImage::Format_Mono,
                              QImage::Format_Grayscale8}) {
      row("png", format);
      row("bmp", format);
    }
    for (const auto format : {QImage::Format_RGBA64, QImage::Format_Grayscale16})
      row("png", format);
    row("ico", QImage::Format_ARGB32);
    row("jpg", QImage::Format_Grayscale8);
  }

  void readsEachDepth() {
    QFETCH(QString, suffix);
    QFETCH(int, format);
    const QString path = written(Chart::image().convertToFormat(QImage::Format(format)),
                                 QStringLiteral("depth.") + suffix);
    const auto properties = images_.properties(path);
    QVERIFY(properties);
    QCOMPARE(properties->size, Chart::size);
    const auto thumbnail = images_.thumbnail(path, 512);
    QVERIFY(thumbnail);
    QVERIFY(differenceAtCells(*thumbnail, QImage(path)) <= 2);
  }

  void tellsResolutions_data() {
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("dotsPerMetre");
    QTest::addColumn<int>("dpi");
    for (const char* suffix : {"png", "jpg", "bmp"}) {
      QTest::addRow("%s 72", suffix) << QString::fromLatin1(suffix) << 2835 << 72;
      QTest::addRow("%s 300", suffix) << QString::fromLatin1(suffix) << 11811 << 300;
    }
  }

  void tellsResolutions() {
    QFETCH(QString, suffix);
    QFETCH(int, dotsPerMetre);
    QImage chart = Chart::image();
    chart.setDotsPerMeterX(dotsPerMetre);
    chart.setDotsPerMeterY(dotsPerMetre);
    const auto properties = images_.properties(written(chart, QStringLiteral("dpi.") + suffix));
    QVERIFY(properties && properties->dpi);
    QTEST(qRound(*properties->dpi), "dpi");
    QVERIFY(!images_.properties(pictureFixture("chart.webp"))->dpi);
  }

  void tellsSizesOfDrawings_data() {
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QSizeF>("points");
    QTest::newRow("pixels") << QByteArray("width='80' height='40'") << QSizeF(80, 40);
    QTest::newRow("box") << QByteArray("viewBox='0 0 30 20'") << QSizeF(30, 20);
    QTest::newRow("per cent") << QByteArray("width='100%' height='100%' viewBox='0 0 30 20'")
                              << QSizeF(30, 20);
    QTest::newRow("inches") << QByteArray("width='2in' height='1in' viewBox='0 0 30 20'")
                            << QSizeF(144, 72);
    QTest::newRow("nothing") << QByteArray() << QSizeF(50, 60);
  }

  void tellsSizesOfDrawings() {
    QFETCH(QByteArray, attributes);
    const QString path = disk_.path(QStringLiteral("size.svg"));
    writeFile(path, "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg' " + attributes +
                        "><rect x='10' y='20' width='40' height='40'/></svg>");
    QVERIFY(!images_.properties(path));
    const auto points = images_.vectorSize(path);
    QVERIFY(points);
    QTEST(*points, "points");
  }

  void drawsAtTheSizeAskedFor() {
    for (const char* name : {"mark.svg", "mark.svgz", "mark.pdf"}) {
      const auto thumbnail = images_.thumbnail(pictureFixture(name), 512);
      QVERIFY2(thumbnail, name);
      QCOMPARE(thumbnail->size(), QSize(512, 256));
      QCOMPARE(thumbnail->pixel(250, 128), qRgba(255, 0, 0, 255));
      QCOMPARE(thumbnail->pixel(260, 128), qRgba(0, 0, 0, 0));
    }
    QCOMPARE(images_.properties(pictureFixture("mark.pdf"))->size, QSize(60, 30));
  }

  void appliesProfiles_data() {
    QTest::addColumn<QColorSpace>("space");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("format");
    for (const char* suffix : {"png", "jpg"}) {
      const QString name = QString::fromLatin1(suffix);
      QTest::addRow("adobe %s", suffix)
          << QColorSpace(QColorSpace::AdobeRgb) << name << int(QImage::Format_RGB32);
      QTest::addRow("p3 %s", suffix)
          << QColorSpace(QColorSpace::DisplayP3) << name << int(QImage::Format_RGB32);
      QTest::addRow("linear %s", suffix)
          << QColorSpace(QColorSpace::SRgbLinear) << name << int(QImage::Format_RGB32);
    }
    QTest::newRow("wide, 16 bits") << QColorSpace(QColorSpace::ProPhotoRgb) << QStringLiteral("png")
                                   << int(QImage::Format_RGBX64);
    QTest::newRow("wide, clear") << QColorSpace(QColorSpace::AdobeRgb) << QStringLiteral("png")
                                 << int(QImage::Format_ARGB32);
  }

  // The toolkit converts to the other space, the library back.
  void appliesProfiles() {
    QFETCH(QColorSpace, space);
    QFETCH(QString, suffix);
    QFETCH(int, format);
    QImage chart = Chart::image(8).convertToFormat(QImage::Format(format));
    chart.setColorSpace(QColorSpace::SRgb);
    const QImage other = chart.convertedToColorSpace(space);
    const QString path = disk_.path(QStringLiteral("profile.") + suffix);
    QVERIFY(other.save(path, nullptr, 100));
    const auto thumbnail = images_.thumbnail(path, 256);
    QVERIFY(thumbnail);
    const QImage plain(path);  // not converted: the check must be able to fail
    QVERIFY(differenceAtCells(plain.convertToFormat(QImage::Format_RGB32), chart) > 20);
    const int difference = differenceAtCells(*thumbnail, Chart::image(4));
    QVERIFY2(difference <= (suffix == QStringLiteral("jpg") ? 16 : 4),
             qPrintable(QString::number(difference)));
  }

  // The file's inks are white paper, red, green and blue, unlike any printer's.
  void appliesProfilesOfInks() {
    const auto thumbnail = images_.thumbnail(pictureFixture("inks.jpg"), 64);
    QVERIFY(thumbnail);
    const QRgb expected[] = {qRgb(255, 255, 255), qRgb(255, 0, 0), qRgb(0, 255, 0),
                             qRgb(0, 0, 255)};
    for (int i = 0; i < 4; ++i) {
      const QRgb color = thumbnail->pixel(16 * i + 8, 24);
      for (const auto component : std::initializer_list<int (*)(QRgb)>{qRed, qGreen, qBlue}) {
        QVERIFY(qAbs(component(color) - component(expected[i])) <= 10);
      }
    }
  }

  void ignoresAProfileThatDoesNotFit() {
    QImage gray = Chart::image().convertToFormat(QImage::Format_Grayscale8);
    gray.setColorSpace(QColorSpace::AdobeRgb);
    const auto thumbnail = images_.thumbnail(written(gray, QStringLiteral("gray.png")), 64);
    QVERIFY(thumbnail);
    QVERIFY(differenceAtCells(*thumbnail, gray) <= 1);
  }

  void turnsThumbnailsUpright_data() {
    QTest::addColumn<int>("orientation");
    for (int i = 1; i <= 8; ++i) QTest::addRow("%d", i) << i;
  }

  void turnsThumbnailsUpright() {
    QFETCH(int, orientation);
    const QString path = disk_.path(QStringLiteral("turned.jpg"));
    writeFile(path, turnedJpeg(Chart::image(8), char(orientation)));
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage upright = reader.read();
    QCOMPARE(upright.width() < upright.height(), orientation > 4);
    const auto thumbnail = images_.thumbnail(path, 1024);
    QVERIFY(thumbnail);
    QCOMPARE(thumbnail->size(), upright.size());
    QVERIFY(differenceAtCells(*thumbnail, upright) <= 4);
    QCOMPARE(images_.properties(path)->size, Chart::size * 8);
  }

  void fitsThumbnails_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("maxPixel");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("half") << QSize(1000, 500) << 500 << QSize(500, 250);
    QTest::newRow("a lot") << QSize(3000, 2000) << 128 << QSize(128, 85);
    QTest::newRow("never larger") << QSize(100, 80) << 512 << QSize(100, 80);
    QTest::newRow("as it is") << QSize(512, 512) << 512 << QSize(512, 512);
    QTest::newRow("a line") << QSize(3000, 1) << 100 << QSize(100, 1);
    QTest::newRow("a column") << QSize(2, 3000) << 100 << QSize(1, 100);
    QTest::newRow("a point") << QSize(1000, 700) << 1 << QSize(1, 1);
  }

  void fitsThumbnails() {
    QFETCH(QSize, size);
    QFETCH(int, maxPixel);
    QFETCH(QSize, expected);
    QImage image(size, QImage::Format_RGB32);
    image.fill(qRgb(30, 90, 160));
    for (const char* name : {"fit.png", "fit.jpg", "fit.bmp"}) {
      const auto thumbnail = images_.thumbnail(written(image, QString::fromLatin1(name)), maxPixel);
      QVERIFY(thumbnail);
      QCOMPARE(thumbnail->size(), expected);
      QVERIFY(qAbs(qBlue(thumbnail->pixel(0, 0)) - 160) <= 4);
    }
  }

  // What is transparent may hold any colour; none of it shows at the edge of what isn't.
  void scalesTransparencyWithoutFringes() {
    QImage image(400, 400, QImage::Format_ARGB32);
    image.fill(qRgba(0, 255, 0, 0));
    for (int y = 0; y < 400; ++y) {
      for (int x = 0; x < 203; ++x) image.setPixel(x, y, qRgba(255, 0, 0, 255));
    }
    const auto thumbnail = images_.thumbnail(written(image, QStringLiteral("fringe.png")), 100);
    QVERIFY(thumbnail);
    for (int x = 0; x < 100; ++x) QVERIFY(qGreen(thumbnail->pixel(x, 50)) <= 2);
    QCOMPARE(qAlpha(thumbnail->pixel(30, 50)), 255);
    QCOMPARE(qAlpha(thumbnail->pixel(70, 50)), 0);
  }

  void goesByContentNotByName() {
    const QString path = disk_.path(QStringLiteral("really-a-tiff [2].svg"));
    QVERIFY(QFile::copy(pictureFixture("chart.tif"), path));
    const auto thumbnail = images_.thumbnail(path, 64);
    QVERIFY(thumbnail);
    QCOMPARE(differenceAtCells(*thumbnail, Chart::image()), 0);
  }

  void worksOnSeveralThreads() {
    const QStringList names = QDir(QStringLiteral(PICTURE_FIXTURES)).entryList(QDir::Files);
    const auto readAll = [&] {
      QList<QImage> thumbnails;
      for (const QString& name : names) {
        const QString path = QStringLiteral(PICTURE_FIXTURES "/") + name;
        thumbnails << images_.thumbnail(path, 32).value_or(QImage());
      }
      return thumbnails;
    };
    const QList<QImage> expected = readAll();
    std::array<QList<QImage>, 4> results;
    std::vector<std::thread> threads;
    threads.reserve(results.size());
    for (auto& result : results) threads.emplace_back([&] { result = readAll(); });
    for (auto& thread : threads) thread.join();
    for (const auto& result : results) QCOMPARE(result, expected);
  }

 private:
  // Writes a picture by the toolkit and gives its path.
  QString written(const QImage& image, const QString& name) {
    const QString path = disk_.path(name);
    return image.save(path) ? path : QString();
  }

  TestServices disk_;
  VipsImages images_{QStringLiteral(VECTOR_PROGRAM)};
};

QTEST_GUILESS_MAIN(TestImages)

#include "tst_images.moc"
