#include "platform/desktop/fonts/CheckedFonts.h"
#include "testing/Cases.h"
#include "testing/DrawnText.h"
#include "testing/TestServices.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QtEndian>

#include <sys/stat.h>

using namespace tarnloft;

namespace {

const QString fixtures = QStringLiteral(FONT_FIXTURES "/");

// Fonts of their own registry, with decoders that all share.
struct FreshFonts {
  FreshFonts() : fonts(decoders(), log) {}
  static const std::shared_ptr<decoding::DecoderPool>& decoders() {
    static const auto pool =
        std::make_shared<decoding::DecoderPool>(QStringLiteral(DECODER_PROGRAM));
    return pool;
  }

  ListedLog log;
  CheckedFonts fonts;
};

}  // namespace

class TestFonts : public QObject {
  Q_OBJECT

 private slots:
  void hasNoNamesOfWhatIsNoFont() {
    const QByteArray font = contentOf(fixtures + "plain.ttf");
    QByteArray crowd = contentOf(fixtures + "collection.ttc");
    qToBigEndian(quint32(100'000), crowd.data() + 8);
    crowd.insert(16, QByteArray(4 * 100'000, '\0'));
    const Cases<QByteArray> cases{
        {"nothing", ""},
        {"text", QByteArray("The quick brown fox\n").repeated(100)},
        {"only a beginning", font.left(200)},
        {"a bitmap font",
         "STARTFONT 2.1\nFONT x\nSIZE 8 75 75\nFONTBOUNDINGBOX 8 8 0 0\nSTARTPROPERTIES 1\n"
         "FAMILY_NAME \"Tarn\"\nENDPROPERTIES\nCHARS 1\nSTARTCHAR A\nENCODING 65\nSWIDTH 8 0\n"
         "DWIDTH 8 0\nBBX 8 8 0 0\nBITMAP\nFF\nFF\nFF\nFF\nFF\nFF\nFF\nFF\nENDCHAR\nENDFONT\n"},
        {"a crowd of faces", crowd},
        {"no family", contentOf(fixtures + "nofamily.ttf")}};
    cases.check([&](const QByteArray& content) {
      TestServices disk;
      QVERIFY(writeFile(disk.path("a.otf"), content));
      QVERIFY(!fonts.names(disk.path("a.otf")));
    });
    TestServices disk;
    const QString pipe = disk.path("pipe.otf");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& other : {pipe, disk.folder.path(), disk.path("missing.otf")}) {
      QVERIFY(!fonts.names(other));
      fonts.registerForProcess(other);
    }
  }

  void tellsNamesAndDrawsInThem() {
    // families, of which the first is told, the style, and how wide an "A" is; 0 if not drawn
    const Cases<QStringList, QString, int> cases{
        {"plain.ttf", {"Tarn Test"}, "Regular", 200},
        {"plain.otf", {"Tarn Ink"}, "Bold", 240},
        {"typographic.ttf", {"Tarn Typo", "Tarn Typo Light"}, "Light", 280},
        {"typographic.otf", {"Tarn Typo Cff", "Tarn Typo Cff Black"}, "Black", 320},
        {"plain.woff", {"Tarn Woff"}, "Regular", 360},
        {"plain.woff2", {"Tarn Woff Two"}, "Regular", 440},
        {"typographic.woff2", {"Tarn Woff Two Typo", "Tarn Woff Two Typo Heavy"}, "Heavy", 480},
        {"collection.ttc", {"Tarn First"}, "Regular", 800},
        {"variable.ttf", {"Tarn Variable"}, "Regular", 500},
        {"wws.ttf", {"Tarn Wide", "Tarn Wide Condensed"}, "Condensed Bold", 520},
        {"mac.ttf", {"Tarn Café"}, "Regular", 560},
        {"languages.ttf", {"Tarn Languages", "Tarn Deutsch", "ターン"}, "Regular", 720},
        {"japanese.ttf", {"ターン 漢字"}, "標準", 760},
        {"marks.ttf", {"Tarn, Comma [Bracket]"}, "Regular", 0},
        {"spaces.ttf", {"Tarn   Spaces"}, "Extra  Bold", 880},
        {"nostyle.ttf", {"Tarn Nostyle"}, "", 600}};
    cases.check(
        [&](const QString& file, const QStringList& families, const QString& style, int width) {
          const auto names = fonts.names(fixtures + file);
          QVERIFY(names);
          QCOMPARE(names->family, families.first());
          QCOMPARE(names->style, style.isEmpty() ? std::nullopt : std::optional(style));
          if (width == 0) return;
          QVERIFY(drawnBox(families.first()) != boxOfWidth(width));
          fonts.registerForProcess(fixtures + file);
          for (const QString& family : families) QTRY_COMPARE(drawnBox(family), boxOfWidth(width));
        });
  }

  void drawsOnWhenTheFileIsGone() {
    TestServices disk;
    const QString path = disk.path("a.ttf");
    QByteArray font = contentOf(fixtures + "plain.ttf");
    font.replace(QByteArray("\0T\0e\0s\0t", 8), QByteArray("\0G\0o\0n\0e", 8));
    QVERIFY(writeFile(path, font));
    fonts.registerForProcess(path);
    QVERIFY(QFile::remove(path));
    QTRY_COMPARE(drawnBox("Tarn Gone"), boxOfWidth(200));
  }

  void registersEachFontOnce() {
    TestServices disk;
    FreshFonts fresh;
    const QString path = disk.path("a.ttf"), copy = disk.path("b.ttf");
    QVERIFY(writeFile(path, "no font") && QFile::copy(fixtures + "typographic.woff2", copy));
    QSignalSpy changes(qGuiApp, &QGuiApplication::fontDatabaseChanged);
    fresh.fonts.registerForProcess(path);
    QVERIFY(fresh.fonts.finish(std::chrono::minutes(1)));
    QVERIFY(writeFile(path, contentOf(copy)));
    for (const QString& each : {path, path, copy, path}) fresh.fonts.registerForProcess(each);
    QTRY_COMPARE(changes.size(), 1);
    QVERIFY(fresh.fonts.finish(std::chrono::minutes(1)));
    QCoreApplication::processEvents();
    QCOMPARE(changes.size(), 1);
  }

  // Each would end a program that draws it, or fill its memory.
  void drawsNoFontThatIsOutOfBounds() {
    const QByteArray font = contentOf(fixtures + "plain.ttf");
    const auto patched = [&](const char* table, qsizetype offset, quint16 value) {
      QByteArray copy = font;
      const auto place = qFromBigEndian<quint32>(copy.constData() + copy.indexOf(table) + 8);
      qToBigEndian(value, copy.data() + place + offset);
      return copy;
    };
    const Cases<QByteArray> cases{
        {"an em of one unit, and so giant glyphs", patched("head", 18, 16)},
        {"giant lines", patched("hhea", 4, 32767)},
        {"a table that is cut", font.left(font.size() * 2 / 3)},
        {"a typewriter's PostScript", "%!PS-AdobeFont-1.0: Tarn\n/FontName /Tarn def\n"}};
    cases.check([&](const QByteArray& content) {
      TestServices disk;
      FreshFonts fresh;
      QVERIFY(writeFile(disk.path("a.ttf"), content));
      QSignalSpy changes(qGuiApp, &QGuiApplication::fontDatabaseChanged);
      fresh.fonts.registerForProcess(disk.path("a.ttf"));
      fresh.fonts.registerForProcess(fixtures + "plain.otf");
      QTRY_COMPARE(changes.size(), 1);
      QVERIFY(fresh.fonts.finish(std::chrono::minutes(1)));
      QCoreApplication::processEvents();
      QCOMPARE(changes.size(), 1);
    });
  }

 private:
  FreshFonts shared_;
  CheckedFonts& fonts = shared_.fonts;
};

int main(int argc, char** argv) {
  useNoDisplay();
  const QGuiApplication application(argc, argv);
  TestFonts test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_fonts.moc"
