#include "assets/AssetMetadata.h"
#include "assets/ByteCount.h"
#include "testing/Cases.h"
#include "testing/FakeMedia.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

class TestAssetMetadata : public QObject {
  Q_OBJECT

 private slots:
  void writesByteCounts() {
    const Cases<qint64> cases{{"Zero KB", 0},
                              {"1 byte", 1},
                              {"1 KB", 1000},
                              {"2 KB", 1500},
                              {"999 KB", 999'499},
                              {"1 MB", 999'500},
                              {"2.4 MB", 2'449'999},
                              {"2.5 MB", 2'450'000},
                              {"1 GB", 999'950'000},
                              {"1.23 GB", 1'234'567'890},
                              {"1.01 GB", 1'005'000'000},
                              {"9.22 EB", 9'223'372'036'854'775'807}};
    cases.check([&](const QString& text, qint64 bytes) { QCOMPARE(byteCountText(bytes), text); });
  }

  void tellsOfPictures() {
    const Cases<QString, bool, bool, double> cases{
        {"30 × 20 px · PNG · 1 KB · Transparent · 144 dpi", "a.png", true, true, 144},
        {"30 × 20 px · JPEG · 1 KB", "a.JPeg", true, false, 71.98},
        {"30 × 20 px · PNG · 1 KB · 73 dpi", "a.b.png", true, false, 72.5},
        {"Scalable · SVG · 1 KB", "a.Svg", true, true, 300},
        {"PSD · 1 KB", "a.psd", false, false, 0},
        {"1 KB", "unknown", false, false, 0}};
    cases.check(
        [&](const QString& line, const QString& name, bool isReadable, bool hasAlpha, double dpi) {
          FakeImages images;
          if (isReadable) images.told = ImageProperties{{30, 20}, hasAlpha, dpi};
          QCOMPARE(AssetMetadata::imageSpec(disk_.files, images, written(name)).line(), line);
        });
  }

  void tellsOfClips() {
    const QSize size(1920, 1080);
    const Cases<std::optional<double>, std::optional<QSize>, QString> cases{
        {"minutes", 65, size, "1920 × 1080 px · MOV · 1 KB · 1:05"},
        {"rounded up", 59.6, size, "1920 × 1080 px · MOV · 1 KB · 1:00"},
        {"beyond an hour", 4500, size, "1920 × 1080 px · MOV · 1 KB · 75:00"},
        {"next to nothing", 0.4, size, "1920 × 1080 px · MOV · 1 KB"},
        {"half a second of sound", 0.5, {}, "MOV · 1 KB · 0:01"},
        {"turned", {}, QSize(-1080, -1920), "1080 × 1920 px · MOV · 1 KB"},
        {"without end", qInf(), {}, "MOV · 1 KB"}};
    cases.check(
        [&](std::optional<double> duration, std::optional<QSize> told, const QString& line) {
          FakeVideos videos;
          videos.told = VideoProperties{duration, told};
          const QString path = written("a.mov");
          QCOMPARE(AssetMetadata::videoSpec(disk_.files, videos, path).line(), line);
          QVERIFY(!AssetMetadata::byteString(disk_.files, disk_.path("missing")));
        });
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
