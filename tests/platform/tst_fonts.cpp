#include "platform/desktop/fonts/FreeTypeFonts.h"
#include "testing/Cases.h"
#include "testing/DrawnText.h"
#include "testing/TestServices.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QtEndian>

#include <memory>
#include <sys/stat.h>

using namespace tarnloft;

namespace {

const QString fixtures = QStringLiteral(FONT_FIXTURES "/");

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
          for (const QString& family : families) QCOMPARE(drawnBox(family), boxOfWidth(width));
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
    QCOMPARE(drawnBox("Tarn Gone"), boxOfWidth(200));
  }

  void registersEachFontOnce() {
    TestServices disk;
    FreeTypeFonts fresh;
    const QString path = disk.path("a.ttf"), copy = disk.path("b.ttf");
    QVERIFY(writeFile(path, "no font") && QFile::copy(fixtures + "typographic.woff2", copy));
    QSignalSpy changes(qGuiApp, &QGuiApplication::fontDatabaseChanged);
    fresh.registerForProcess(path);
    QCOMPARE(changes.size(), 0);
    QVERIFY(writeFile(path, contentOf(copy)));
    for (const QString& each : {path, path, copy, path}) fresh.registerForProcess(each);
    QCOMPARE(changes.size(), 1);
  }

  // What is posted to the main thread after it comes later.
  void registersFromAnotherThread() {
    FreeTypeFonts fresh;
    QSignalSpy changes(qGuiApp, &QGuiApplication::fontDatabaseChanged);
    qsizetype changesBefore = -1;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
      fresh.registerForProcess(fixtures + "collection.ttc");
      QMetaObject::invokeMethod(qGuiApp, [&] { changesBefore = changes.size(); });
    }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(changes.size(), 0);
    QTRY_COMPARE(changesBefore, 1);
    QCOMPARE(drawnBox("Tarn Second", QFont::Bold), boxOfWidth(840));
  }

  void readsALargeFileAside() {
    TestServices disk;
    const QString path = disk.path("a.ttf");
    QVERIFY(writeFile(path, contentOf(fixtures + "plain.ttf") + QByteArray(8 << 20, '\0')));
    FreeTypeFonts fresh;
    QSignalSpy changes(qGuiApp, &QGuiApplication::fontDatabaseChanged);
    fresh.registerForProcess(path);
    QCOMPARE(changes.size(), 0);
    QTRY_COMPARE(changes.size(), 1);
  }

 private:
  FreeTypeFonts fonts;
};

int main(int argc, char** argv) {
  useNoDisplay();
  const QGuiApplication application(argc, argv);
  TestFonts test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_fonts.moc"
