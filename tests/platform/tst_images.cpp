#include "platform/desktop/decoding/CagedImages.h"
#include "testing/Cases.h"
#include "testing/Pictures.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QRandomGenerator>
#include <QTest>

#include <thread>

using namespace tarnloft;

// The HEIC encoder keeps some memory of each picture; that is not for us to mend.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:libx265";
}

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

}  // namespace

class TestImages : public QObject {
  Q_OBJECT

 private slots:
  void readsEachKind() {
    const QList<std::tuple<const char*, bool, int>> files{
        // name, isClear, tolerance
        {"chart.tif", false, 0},   {"end.tif", false, 0},          {"deep.tif", false, 1},
        {"lab.tif", false, 1},     {"chart.webp", false, 24},      {"chart.heic", false, 24},
        {"chart.avif", false, 24}, {"progressive.jpg", false, 24}, {"clear.webp", true, 2},
        {"clear.heic", true, 12},  {"interlaced.png", true, 2}};
    for (const auto& [name, isClear, tolerance] : files) {
      const QString path = pictureFixture(name);
      const auto properties = images_.properties(path);
      QVERIFY2(properties, name);
      QCOMPARE(properties->size, Chart::size);
      QCOMPARE(properties->hasAlpha, isClear);
      QVERIFY2(!images_.vectorSize(path), name);
      const auto thumbnail = images_.thumbnail(path, 512);
      QVERIFY2(thumbnail, name);
      QCOMPARE(thumbnail->hasAlphaChannel(), isClear);
      QVERIFY2(differenceAtCells(*thumbnail, isClear ? clearChart() : Chart::image()) <= tolerance,
               name);
    }
  }

  void readsAsTheToolkitDoes() {
    const auto readsAlike = [&](const QString& path) {
      const QImage toolkits(path);
      const auto properties = images_.properties(path);
      const auto thumbnail = images_.thumbnail(path, 512);
      return properties && properties->size == Chart::size &&
             properties->hasAlpha == toolkits.hasAlphaChannel() && thumbnail &&
             differenceAtCells(*thumbnail, toolkits) <= 2;
    };
    for (const char* name : {"chart.gif", "gray.jpg"}) {
      QVERIFY2(readsAlike(pictureFixture(name)), name);
    }
    const QList<QPair<QString, QImage::Format>> depths{
        {"png", QImage::Format_RGB32},  {"png", QImage::Format_Indexed8},
        {"png", QImage::Format_Mono},   {"png", QImage::Format_Grayscale8},
        {"png", QImage::Format_RGBA64}, {"png", QImage::Format_Grayscale16},
        {"bmp", QImage::Format_RGB32},  {"bmp", QImage::Format_Indexed8},
        {"bmp", QImage::Format_Mono},   {"bmp", QImage::Format_Grayscale8},
        {"ico", QImage::Format_ARGB32}, {"jpg", QImage::Format_Grayscale8}};
    for (const auto& [suffix, format] : depths) {
      const QString path = written(Chart::image().convertToFormat(format), "depth." + suffix);
      QVERIFY2(readsAlike(path), qPrintable(suffix + ' ' + QString::number(format)));
    }
  }

  void tellsResolutions() {
    for (const auto& [dotsPerMetre, dpi] : {std::pair(2835, 72), {11811, 300}}) {
      QImage chart = Chart::image();
      chart.setDotsPerMeterX(dotsPerMetre);
      chart.setDotsPerMeterY(dotsPerMetre);
      for (const char* name : {"dpi.png", "dpi.jpg", "dpi.bmp"}) {
        const auto properties = images_.properties(written(chart, name));
        QVERIFY2(properties && properties->dpi, name);
        QCOMPARE(qRound(*properties->dpi), dpi);
      }
    }
    QVERIFY(!images_.properties(pictureFixture("chart.webp"))->dpi);
  }

  void tellsSizesOfDrawings() {
    const Cases<QByteArray, QSizeF> cases{
        {"pixels", "width='80' height='40'", QSizeF(80, 40)},
        {"box", "viewBox='0 0 30 20'", QSizeF(30, 20)},
        {"per cent", "width='100%' height='100%' viewBox='0 0 30 20'", QSizeF(30, 20)},
        {"inches", "width='2in' height='1in' viewBox='0 0 30 20'", QSizeF(144, 72)},
        {"nothing", "", QSizeF(50, 60)}};
    cases.check([&](const QByteArray& attributes, const QSizeF& points) {
      const QString path = disk_.path("size.svg");
      writeFile(path, "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg' " + attributes +
                          "><rect x='10' y='20' width='40' height='40'/></svg>");
      QVERIFY(!images_.properties(path));
      const auto told = images_.vectorSize(path);
      QVERIFY(told);
      QCOMPARE(*told, points);
    });
  }

  void drawsAtTheSizeAskedFor() {
    for (const char* name : {"mark.svg", "mark.svgz", "mark.pdf"}) {
      const auto thumbnail = images_.thumbnail(pictureFixture(name), 512);
      QVERIFY2(thumbnail, name);
      QCOMPARE(thumbnail->size(), QSize(512, 256));
      QCOMPARE(thumbnail->pixel(250, 128), qRgba(255, 0, 0, 255));
      QCOMPARE(thumbnail->pixel(260, 128), qRgba(0, 0, 0, 0));
      const QImage large = QImage::fromData(converted(name, ExportFormat::png, {1600, 800}));
      QCOMPARE(qAlpha(large.pixel(798, 400)), 255);
      QCOMPARE(qAlpha(large.pixel(801, 400)), 0);
    }
    QCOMPARE(images_.properties(pictureFixture("mark.pdf"))->size, QSize(60, 30));
  }

  // The toolkit converts to the other space, the library back.
  void appliesProfiles() {
    using Space = QColorSpace;
    const Cases<Space, QString, QImage::Format, int> cases{
        {"adobe png", Space::AdobeRgb, "png", QImage::Format_RGB32, 4},
        {"p3 png", Space::DisplayP3, "png", QImage::Format_RGB32, 4},
        {"adobe jpg", Space::AdobeRgb, "jpg", QImage::Format_RGB32, 16},
        {"p3 jpg", Space::DisplayP3, "jpg", QImage::Format_RGB32, 16},
        {"wide, 16 bits", Space::ProPhotoRgb, "png", QImage::Format_RGBX64, 4},
        {"wide, clear", Space::AdobeRgb, "png", QImage::Format_ARGB32, 4}};
    cases.check(
        [&](const Space& space, const QString& suffix, QImage::Format format, int tolerance) {
          QImage chart = Chart::image(8).convertToFormat(format);
          chart.setColorSpace(Space::SRgb);
          const QString path = disk_.path("profile." + suffix);
          QVERIFY(chart.convertedToColorSpace(space).save(path, nullptr, 100));
          const QImage plain(path);  // not converted: the check must be able to fail
          QVERIFY(differenceAtCells(plain.convertToFormat(QImage::Format_RGB32), chart) > 20);
          const auto thumbnail = images_.thumbnail(path, 256);
          QVERIFY(thumbnail && differenceAtCells(*thumbnail, Chart::image(4)) <= tolerance);
        });
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

  void turnsThumbnailsUpright() {
    const QString path = disk_.path("turned.jpg");
    for (int orientation = 1; orientation <= 8; ++orientation) {
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
  }

  void fitsThumbnails() {
    const Cases<QSize, int, QSize> cases{{"half", QSize(1000, 500), 500, QSize(500, 250)},
                                         {"a lot", QSize(3000, 2000), 128, QSize(128, 85)},
                                         {"never larger", QSize(100, 80), 512, QSize(100, 80)},
                                         {"as it is", QSize(512, 512), 512, QSize(512, 512)},
                                         {"a line", QSize(3000, 1), 100, QSize(100, 1)},
                                         {"a column", QSize(2, 3000), 100, QSize(1, 100)},
                                         {"a point", QSize(1000, 700), 1, QSize(1, 1)}};
    cases.check([&](const QSize& size, int maxPixel, const QSize& expected) {
      QImage image(size, QImage::Format_RGB32);
      image.fill(qRgb(30, 90, 160));
      for (const char* name : {"fit.png", "fit.jpg", "fit.bmp"}) {
        const auto thumbnail =
            images_.thumbnail(written(image, QString::fromLatin1(name)), maxPixel);
        QVERIFY(thumbnail);
        QCOMPARE(thumbnail->size(), expected);
        QVERIFY(qAbs(qBlue(thumbnail->pixel(0, 0)) - 160) <= 4);
      }
    });
  }

  // What is transparent may hold any colour; none of it shows at the edge of what isn't.
  void scalesTransparencyWithoutFringes() {
    QImage image(400, 400, QImage::Format_ARGB32);
    image.fill(qRgba(0, 255, 0, 0));
    for (int y = 0; y < 400; ++y) {
      for (int x = 0; x < 203; ++x) image.setPixel(x, y, qRgba(255, 0, 0, 255));
    }
    const auto thumbnail = images_.thumbnail(written(image, "fringe.png"), 100);
    QVERIFY(thumbnail);
    for (int x = 0; x < 100; ++x) QVERIFY(qGreen(thumbnail->pixel(x, 50)) <= 2);
    QCOMPARE(qAlpha(thumbnail->pixel(30, 50)), 255);
    QCOMPARE(qAlpha(thumbnail->pixel(70, 50)), 0);
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

  // What is exported.

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

  void putsWhiteUnderTransparencyForJpegAlone() {
    const QImage jpeg = QImage::fromData(converted("mark.svg", ExportFormat::jpeg, {80, 40}));
    QVERIFY(qGreen(jpeg.pixel(60, 20)) >= 253 && qBlue(jpeg.pixel(60, 20)) >= 253);
    QVERIFY(qRed(jpeg.pixel(20, 20)) >= 250 && qGreen(jpeg.pixel(20, 20)) <= 5);
    const QImage fading =
        QImage::fromData(converted("clear.webp", ExportFormat::jpeg, Chart::size));
    const QRgb blackCell = fading.pixel(3 * 16 + 8, 16 + 8);  // three quarters and a bit there
    QVERIFY(qAbs(qRed(blackCell) - 255 * 8 / 64) <= 12);
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

  void refusesSizesBeyondAnyPicture() {
    for (const char* fixture : {"chart.tif", "mark.svg"}) {
      for (const QSize size :
           {QSize(0, 10), QSize(-1, 10), QSize(100'000, 100'000), QSize(2'000'000'000, 1)}) {
        QVERIFY(converted(fixture, ExportFormat::jpeg, size).isEmpty());
      }
    }
  }

 private:
  // Writes a picture by the toolkit and gives its path.
  QString written(const QImage& image, const QString& name) {
    const QString path = disk_.path(name);
    return image.save(path) ? path : QString();
  }

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
  CagedImages images_{std::make_shared<decoding::DecoderPool>(QStringLiteral(DECODER_PROGRAM))};
};

QTEST_GUILESS_MAIN(TestImages)
#include "tst_images.moc"
