#include "platform/desktop/decoding/CagedImages.h"
#include "testing/Cases.h"
#include "testing/Pictures.h"

#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace tarnloft;

namespace {

qint64 peakMegabytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024;
}

QByteArray svg(const QByteArray& content,
               const QByteArray& attributes = "width='100' height='100'") {
  return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' " +
         attributes + '>' + content + "</svg>";
}

// Keeps the processor busy for days.
const char* const endlessFilter =
    "<filter id='f' x='0' y='0' width='1' height='1'>"
    "<feTurbulence numOctaves='99999999' baseFrequency='.01'/></filter>"
    "<rect width='100' height='100' filter='url(#f)'/>";

QByteArray bmpOf(qint32 side) {
  QByteArray header("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0", 18);
  const auto number = [&](qint32 value) {
    header.append(reinterpret_cast<const char*>(&value), sizeof value);
  };
  number(side);
  number(side);
  return header + QByteArray("\1\0\x18\0", 4) + QByteArray(24 + 500, '\0');
}

}  // namespace

class TestBadImages : public QObject {
  Q_OBJECT

 private slots:
  void givesNothingForWhatIsNoPicture() {
    const Cases<QByteArray> cases{
        {"zero bytes", ""},
        {"text", "Dear client,\nhere are the logos.\n"},
        {"a page", "<!DOCTYPE html><html><body>Hi</body></html>"},
        {"a netpbm, whose reader is off", QByteArray("P6 1 1 255\n\0\0\0", 14)},
        {"PostScript", "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n"},
        {"a beginning alone", "\x89PNG\r\n\x1A\n"},
        {"a drawing of no size", svg("", "width='0' height='-3'")}};
    cases.check([&](const QByteArray& content) {
      for (const char* name : {"bad.png", "bad.svg"}) {
        const QString path = written(content, QString::fromLatin1(name));
        QVERIFY(!images_.properties(path));
        QVERIFY(!images_.vectorSize(path));
        QVERIFY(isAbsent(path));
      }
    });
    const QString pipe = disk_.path("pipe.png");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, QString("/dev/zero"), disk_.path("missing.png")}) {
      QVERIFY(isAbsent(path));
    }
  }

  void neverShowsACutPictureAsAnother_data() {
    QTest::addColumn<QByteArray>("content");
    for (const QString& name : QDir(QStringLiteral(PICTURE_FIXTURES)).entryList(QDir::Files)) {
      if (name == "make.py") continue;
      QTest::newRow(qPrintable(name)) << contentOf(QStringLiteral(PICTURE_FIXTURES "/") + name);
    }
    for (const char* format : {"bmp", "png", "ico"}) {
      QByteArray content;
      QBuffer buffer(&content);
      Chart::image().save(&buffer, format);
      QTest::newRow(format) << content;
    }
  }

  // A file that has lost its end shows nothing, or all that the whole one shows, since some hold
  // nothing at their end that counts. What a file is called doesn't count.
  void neverShowsACutPictureAsAnother() {
    QFETCH(QByteArray, content);
    const auto whole = images_.thumbnail(written(content, "whole [2].svg"), 64);
    QVERIFY(whole);
    for (const int percent : {1, 5, 20, 40, 60, 80, 95, 99}) {
      const QByteArray cut = content.first(content.size() * percent / 100);
      const QString path = written(cut, "cut");
      const auto thumbnail = images_.thumbnail(path, 64);
      QVERIFY2(!thumbnail || thumbnail == whole, qPrintable(QString::number(percent)));
      images_.convert(path, ExportFormat::jpeg, {20, 20}, 0.5);
    }
    QVERIFY(!images_.thumbnail(written(content.first(content.size() / 2), "half"), 64));
    QRandomGenerator random(7);
    for (int round = 0; round < 12; ++round) {  // or damaged: the program survives
      QByteArray damaged = content;
      for (int i = 0; i < 4; ++i) {
        damaged[random.bounded(damaged.size())] = char(random.bounded(256));
      }
      const QString path = written(damaged, "damaged");
      images_.properties(path);
      const auto thumbnail = images_.thumbnail(path, 64);
      QVERIFY(!thumbnail || (thumbnail->width() <= 64 && thumbnail->height() <= 64));
    }
  }

  void refusesPicturesThatClaimTooMuch() {
    const Cases<QByteArray> cases{{"png", pngOf(60'000, 60'000, 8, 2, 0, 1000)},
                                  {"png, one bit", pngOf(60'000, 60'000, 1, 0, 0, 60'000)},
                                  {"png, interlaced", pngOf(25'000, 25'000, 8, 2, 1, 1000)},
                                  {"bmp", bmpOf(60'000)}};
    cases.check([&](const QByteArray& content) {
      const QString path = written(content, "claim.png");
      const qint64 before = peakMegabytes();
      QVERIFY(isAbsent(path));
      QVERIFY(peakMegabytes() - before < 100);
    });
  }

  void streamsLargePictures() {
    const QString path = written(pngOf(20'000, 20'000, 1, 0, 0, 2501 * 20'000), "large.png");
    const qint64 before = peakMegabytes();
    const auto thumbnail = images_.thumbnail(path, 128);
    QVERIFY(thumbnail);
    QCOMPARE(thumbnail->size(), QSize(128, 128));
    QVERIFY2(peakMegabytes() - before < 200, "of 400 MB of pixels");
  }

  void readsNothingOutsideOfADrawing() {
    QByteArray red;
    QBuffer buffer(&red);
    QImage pixel(8, 8, QImage::Format_RGB32);
    pixel.fill(Qt::red);
    pixel.save(&buffer, "png");
    const QByteArray path = QFile::encodeName(written(red, "red.png"));
    const Cases<QByteArray, bool> cases{{"inside", "data:image/png;base64," + red.toBase64(), true},
                                        {"beside", "red.png", false},
                                        {"path", path, false},
                                        {"address", "file://" + path, false}};
    cases.check([&](const QByteArray& source, bool shows) {
      const QByteArray drawing =
          svg("<image width='100' height='100' xlink:href='" + source + "'/>");
      const auto thumbnail = images_.thumbnail(written(drawing, "outside.svg"), 64);
      QCOMPARE(thumbnail && qAlpha(thumbnail->pixel(32, 32)) != 0, shows);
      const QByteArray entity = "<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY x SYSTEM '" + source +
                                "'>]>" + svg("<text y='50'>&x;</text>");
      QVERIFY(!images_.thumbnail(written(entity, "entity.svg"), 64));
    });
  }

  void endsDrawingsThatNeverEnd() {
    const Cases<QByteArray> cases{{"a filter without end", svg(endlessFilter)},
                                  {"nested deeply", svg(QByteArray("<g>").repeated(200'000))}};
    cases.check([&](const QByteArray& content) {
      QVERIFY(!images_.thumbnail(written(content, "endless.svg"), 64));
      QVERIFY(images_.thumbnail(pictureFixture("mark.svg"), 64));  // by a program that still serves
    });
  }

 private:
  QString written(const QByteArray& content, const QString& name) {
    QString path = disk_.path(name);
    writeFile(path, content);
    return path;
  }
  bool isAbsent(const QString& path) {
    return !images_.thumbnail(path, 64) && !images_.convert(path, ExportFormat::png, {64, 48}, 1);
  }

  TestServices disk_;
  CagedImages images_{std::make_shared<decoding::DecoderPool>(QStringLiteral(DECODER_PROGRAM))};
};

QTEST_GUILESS_MAIN(TestBadImages)
#include "tst_badimages.moc"
