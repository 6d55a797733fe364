#include "platform/desktop/decoding/CagedVideos.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace tarnloft;

namespace {

CagedVideos videos() {
  static const auto decoders =
      std::make_shared<decoding::DecoderPool>(QStringLiteral(DECODER_PROGRAM));
  return CagedVideos(decoders);
}

const QString fixtures = QStringLiteral(VIDEO_FIXTURES "/");

// The corners of each frame of the fixtures; the last one tells which frame it is.
constexpr QRgb red = qRgb(220, 40, 40), green = qRgb(40, 200, 40), blue = qRgb(40, 40, 220);
constexpr QRgb greyOf(int frame) { return qRgb(60 + 50 * frame, 60 + 50 * frame, 60 + 50 * frame); }

bool isNear(QRgb one, QRgb other) {
  const int difference =
      std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                std::abs(qBlue(one) - qBlue(other))});
  return difference <= 8 && std::abs(qAlpha(one) - qAlpha(other)) <= 1;
}

QRgb colorAt(const QImage& picture, double x, double y) {
  return picture.pixelColor(int(x * picture.width()), int(y * picture.height())).rgba();
}

// The colours in the middle of the four quarters, row by row.
QList<QRgb> quartersOf(const QImage& picture) {
  return {colorAt(picture, .25, .25), colorAt(picture, .75, .25), colorAt(picture, .25, .75),
          colorAt(picture, .75, .75)};
}

bool areNear(const QList<QRgb>& some, const QList<QRgb>& others) {
  return std::equal(some.begin(), some.end(), others.begin(), others.end(), isNear);
}

QByteArray clip(const char* name) { return contentOf(fixtures + QLatin1String(name)); }

// Puts a number of 32 bits `offset` bytes behind the place where `atom` stands in an MP4 file.
void patch(QByteArray& file, const char* atom, qsizetype offset, quint32 value) {
  qToBigEndian(value, file.data() + file.indexOf(atom) + offset);
}

qint64 peakMemory() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;  // kilobytes
}

}  // namespace

class TestVideos : public QObject {
  Q_OBJECT

 private slots:
  // Sizes and durations as `ffprobe -show_entries stream=width,height:format=duration` tells them;
  // the poster stands upright, in the proportions of its pixels.
  void tellsAndShowsWhatIsInAFile() {
    using Quarters = QList<QRgb>;
    const QSize size(64, 48), tall(48, 64);
    const QRgb grey = greyOf(1);
    const Quarters upright{red, green, blue, grey}, atOnce{red, green, blue, greyOf(0)};
    // size, duration, the poster's size and quarters; negative and empty for none
    const Cases<QSize, double, QSize, Quarters> cases{
        {"av1.mp4", size, 0.4, size, upright},
        {"bt709.mp4", size, 0.4, size, upright},
        {"full-range.mp4", size, 0.4, size, upright},
        {"h264.mkv", size, 0.4, size, upright},
        {"h264.mp4", size, 0.4, size, upright},
        {"h264.ts", size, 0.4, size, upright},
        {"h264.flv", size, 0.6, size, upright},
        {"hevc10.mov", size, 0.4, size, upright},
        {"animation.mov", size, 0.4, size, upright},
        {"mjpeg.avi", size, 0.4, size, upright},
        {"mpeg4.3gp", size, 0.4, size, upright},
        {"mpeg2.mpg", size, 0.04, size, upright},
        {"theora.ogv", size, 0.4, size, upright},
        {"vp8.webm", size, 0.4, size, upright},
        {"vp9.webm", size, 0.4, size, upright},
        {"wmv2.wmv", size, 0.4, size, upright},
        {"prores.mov", size, 0.2, size, upright},
        {"cover-and-clip.mkv", size, 0.4, size, upright},
        {"no-duration.webm", size, -1, size, upright},
        {"odd.mp4", {63, 47}, 0.4, {63, 47}, upright},
        {"wide.mp4", size, 0.4, {128, 48}, upright},
        {"turned90.mp4", size, 0.4, tall, {blue, red, grey, green}},
        {"turned180.mp4", size, 0.4, size, {grey, blue, green, red}},
        {"turned270.mp4", size, 0.4, tall, {green, grey, red, blue}},
        {"mirrored.mp4", size, 0.4, size, {green, red, grey, blue}},
        {"mirrored-turned.mp4", size, 0.4, tall, {red, blue, green, grey}},
        {"one-frame.mp4", size, 0.1, size, atOnce},
        {"late-picture.mp4", size, 1.4, size, atOnce},
        {"sound.m4a", {}, 0.5, {}, {}},
        // A probe calls the cover a track; a player doesn't.
        {"sound-with-cover.m4a", {}, 0.5, {}, {}}};
    cases.check([](const QString& file, QSize told, double duration, QSize shown,
                   const Quarters& quarters) {
      const auto properties = videos().properties(fixtures + file);
      QVERIFY(properties);
      QCOMPARE(properties->size.value_or(QSize()), told);
      QVERIFY(std::abs(properties->duration.value_or(-1) - duration) < 0.001);
      const auto poster = videos().frame(fixtures + file, 0.1, 512);
      QCOMPARE(poster.has_value(), shown.isValid());
      if (!poster) return;
      QCOMPARE(poster->size(), shown);
      QVERIFY(areNear(quartersOf(*poster), quarters));
    });
  }

  // Flat colours; what they are in sRGB is computed by hand from the standards that the clips name.
  void showsColorsAsAScreenDoes() {
    const Cases<QString, QRgb> cases{
        {"of a wide range", "wide-colors.mp4", qRgb(241, 76, 29)},
        {"of high range, ST 2084", "perceptual.mp4", qRgb(107, 107, 107)},
        {"of high range, B67", "hybrid.mp4", qRgb(168, 168, 168)},
        {"half transparent", "glass.mov", qRgba(220, 40, 40, 128)}};
    cases.check([&](const QString& file, QRgb color) {
      const auto poster = videos().frame(fixtures + file, 0.1, 512);
      QVERIFY(poster);
      QVERIFY(areNear(quartersOf(*poster), {color, color, color, color}));
    });
  }

  void showsTheMomentAskedFor() {
    const std::pair<double, int> frames[] = {{-1, 0},   {0, 0},    {0.09, 0}, {0.11, 1},
                                             {0.25, 2}, {0.35, 3}, {3, 3},    {1e30, 3}};
    for (const char* file : {"h264.mp4", "h264.mkv", "h264.ts", "vp9.webm", "hevc10.mov"}) {
      for (const auto& [seconds, frame] : frames) {
        const auto picture = videos().frame(fixtures + file, seconds, 512);
        QVERIFY2(picture && isNear(colorAt(*picture, .75, .75), greyOf(frame)), file);
      }
    }
  }

  void fitsTheSizeAskedFor() {
    const Cases<QString, int, QSize> cases{{"turned", "turned90.mp4", 32, QSize(24, 32)},
                                           {"wide", "wide.mp4", 64, QSize(64, 24)},
                                           {"odd", "odd.mp4", 21, QSize(21, 16)}};
    cases.check([&](const QString& file, int maxPixel, const QSize& size) {
      const auto picture = videos().frame(fixtures + file, 0.1, maxPixel);
      QVERIFY(picture);
      QCOMPARE(picture->size(), size);
    });
  }

  void hasNothingOfWhatIsNoClip() {
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray noise(100'000, '\0');
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32*>(noise.data()), noise.size() / 4);
    const Cases<QByteArray> cases{{"nothing", ""},
                                  {"text", QByteArray("The quick brown fox\n").repeated(100)},
                                  {"zeros", QByteArray(100'000, '\0')},
                                  {"noise", noise},
                                  {"only a beginning", clip("h264.mp4").left(900)},
                                  {"a page", "<html><video src='h264.mp4'></video></html>"}};
    cases.check([&](const QByteArray& content) {
      TestServices disk;
      for (const char* name : {"a.mp4", "a.webm", "a.ts", "a"}) {
        const QString path = disk.path(QString::fromLatin1(name));
        QVERIFY(writeFile(path, content));
        QVERIFY(!videos().properties(path));
        QVERIFY(!videos().frame(path, 0.1, 512));
      }
      const QString pipe = disk.path("pipe.mp4");
      QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
      for (const QString& path : {pipe, disk.folder.path(), disk.path("missing.mp4"), QString()}) {
        QVERIFY(!videos().properties(path));
      }
    });
  }

  // Files that name a good clip beside them, in ways that the library knows.
  void readsNoOtherFile() {
    const Cases<QByteArray> cases{
        {"playlist", "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:0.4,\nclip.ts\n#EXT-X-ENDLIST\n"},
        {"script", "ffconcat version 1.0\nfile 'clip.ts'\n"}};
    cases.check([&](const QByteArray& content) {
      TestServices disk;
      QVERIFY(writeFile(disk.path("clip.ts"), clip("h264.ts")));
      const QString before = QDir::currentPath();
      const auto restore = qScopeGuard([&] { QDir::setCurrent(before); });
      QVERIFY(QDir::setCurrent(disk.folder.path()));
      for (const char* name : {"a.mp4", "a.m3u8"}) {
        QVERIFY(writeFile(disk.path(QString::fromLatin1(name)), content));
        QVERIFY(!videos().properties(disk.path(QString::fromLatin1(name))));
      }
    });
  }

  // A table of constant sizes needs no bytes for its entries.
  void anIndexOfBillionsTakesLittleMemory() {
    TestServices disk;
    const QString path = disk.path("a.mp4");
    QByteArray file = clip("h264.mp4");
    constexpr quint32 many = 80'000'000;
    patch(file, "stsz", 8, 1);
    patch(file, "stsz", 12, many);
    patch(file, "stsc", 16, many);
    QVERIFY(writeFile(path, file));
    const qint64 before = peakMemory();
    QCOMPARE(videos().properties(path)->size, QSize(64, 48));
    QVERIFY(!videos().frame(path, 0.1, 512));
    QVERIFY(peakMemory() - before < 500'000);  // it would be four million
  }
};

QTEST_GUILESS_MAIN(TestVideos)
#include "tst_videos.moc"
