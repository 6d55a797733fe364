#include "assets/AssetMetadata.h"
#include "assets/ByteCount.h"
#include "testing/GatedImages.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

namespace {

class ToldVideos : public Videos {
 public:
  std::optional<VideoProperties> told;
  std::optional<VideoProperties> properties(const QString&) override { return told; }
  std::optional<QImage> frame(const QString&, double, int) override { return std::nullopt; }
};

}  // namespace

class TestAssetMetadata : public QObject {
  Q_OBJECT

 private slots:
  void writesByteCounts_data() {
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](qint64 bytes, const char* text) {
      QTest::newRow(text) << bytes << QString::fromLatin1(text);
    };
    row(0, "Zero KB");
    row(1, "1 byte");
    row(999, "999 bytes");
    row(1000, "1 KB");
    row(1499, "1 KB");
    row(1500, "2 KB");
    row(999'499, "999 KB");
    row(999'500, "1 MB");
    row(2'449'999, "2.4 MB");
    row(2'450'000, "2.5 MB");
    row(12'000'000, "12 MB");
    row(999'949'999, "999.9 MB");
    row(999'950'000, "1 GB");
    row(1'234'567'890, "1.23 GB");
    row(1'005'000'000, "1.01 GB");
    row(1'200'000'000, "1.2 GB");
    row(5'000'000'000'000, "5 TB");
    row(9'223'372'036'854'775'807, "9.22 EB");
  }

  void writesByteCounts() {
    QFETCH(qint64, bytes);
    QTEST(byteCountText(bytes), "text");
  }

  void joinsWhatIsThere() {
    QCOMPARE(AssetSpec().line(), QString());
    QCOMPARE((AssetSpec{{}, {}, QStringLiteral("2.4 MB"), {}}).line(), QStringLiteral("2.4 MB"));
    const AssetSpec all{QStringLiteral("1200 × 630 px"),
                        QStringLiteral("PNG"),
                        QStringLiteral("2.4 MB"),
                        {QStringLiteral("Transparent"), QStringLiteral("144 dpi")}};
    QCOMPARE(all.line(), QStringLiteral("1200 × 630 px · PNG · 2.4 MB · Transparent · 144 dpi"));
  }

  void tellsOfPictures_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isReadable");
    QTest::addColumn<bool>("hasAlpha");
    QTest::addColumn<double>("dpi");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, bool readable, bool alpha, double dpi, const char* line) {
      QTest::newRow(qPrintable(QString::fromUtf8(line)))
          << QString::fromUtf8(name) << readable << alpha << dpi << QString::fromUtf8(line);
    };
    row("a.png", true, true, 144, "30 × 20 px · PNG · 1 KB · Transparent · 144 dpi");
    row("a.JPeg", true, false, 71.98, "30 × 20 px · JPEG · 1 KB");
    row("a.b.png", true, false, 72.5, "30 × 20 px · PNG · 1 KB · 73 dpi");
    row("a.png", true, false, 0, "30 × 20 px · PNG · 1 KB");
    row("b.png", true, false, qInf(), "30 × 20 px · PNG · 1 KB");
    row("c.png", true, false, qQNaN(), "30 × 20 px · PNG · 1 KB");
    row("a.Svg", true, true, 300, "Scalable · SVG · 1 KB");
    row("a.psd", false, false, 0, "PSD · 1 KB");
    row("unknown", false, false, 0, "1 KB");
  }

  void tellsOfPictures() {
    QFETCH(QString, name);
    QFETCH(bool, isReadable);
    QFETCH(bool, hasAlpha);
    QFETCH(double, dpi);
    GatedImages images;
    if (isReadable) images.told = ImageProperties{{30, 20}, hasAlpha, dpi};
    QTEST(AssetMetadata::imageSpec(disk_.files, images, written(name)).line(), "line");
  }

  void tellsOfClips_data() {
    using Seconds = std::optional<double>;
    QTest::addColumn<Seconds>("duration");
    QTest::addColumn<std::optional<QSize>>("size");
    QTest::addColumn<QString>("line");
    const auto row = [](Seconds duration, std::optional<QSize> size, const char* line) {
      QTest::newRow(qPrintable(QString::fromUtf8(line)))
          << duration << size << QString::fromUtf8(line);
    };
    const QSize size(1920, 1080);
    row(65, size, "1920 × 1080 px · MOV · 1 KB · 1:05");
    row(59.6, size, "1920 × 1080 px · MOV · 1 KB · 1:00");
    row(4500, size, "1920 × 1080 px · MOV · 1 KB · 75:00");
    row(0.4, size, "1920 × 1080 px · MOV · 1 KB");
    row(0.5, std::nullopt, "MOV · 1 KB · 0:01");
    row(std::nullopt, QSize(-1080, -1920), "1080 × 1920 px · MOV · 1 KB");
    row(qInf(), std::nullopt, "MOV · 1 KB");
  }

  void tellsOfClips() {
    QFETCH(std::optional<double>, duration);
    QFETCH(std::optional<QSize>, size);
    ToldVideos videos;
    videos.told = VideoProperties{duration, size};
    const QString path = written(QStringLiteral("a.mov"));
    QTEST(AssetMetadata::videoSpec(disk_.files, videos, path).line(), "line");
    videos.told = std::nullopt;
    QCOMPARE(AssetMetadata::videoSpec(disk_.files, videos, path).line(),
             QStringLiteral("MOV · 1 KB"));
  }

  void aMissingFileTellsNothing() {
    GatedImages images;
    const QString path = disk_.path(QStringLiteral("missing"));
    QVERIFY(!AssetMetadata::byteString(disk_.files, path));
    QCOMPARE(AssetMetadata::imageSpec(disk_.files, images, path), AssetSpec());
  }

 private:
  QString written(const QString& name) {
    QString path = disk_.path(name);
    writeFile(path, QByteArray(1234, 'x'));
    return path;
  }

  TestServices disk_;
};

QTEST_GUILESS_MAIN(TestAssetMetadata)

#include "tst_assetmetadata.moc"
