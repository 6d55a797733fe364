#include "platform/desktop/FreeTypeFonts.h"
#include "testing/DrawnText.h"
#include "testing/TestServices.h"

#include <QGuiApplication>
#include <QRandomGenerator>
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
  void tellsFamilyAndStyle_data() {
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("style");
    const auto row = [](const char* file, const char* family, const char* style) {
      QTest::newRow(file) << QString::fromUtf8(family) << QString::fromUtf8(style);
    };
    row("plain.ttf", "Tarn Test", "Regular");
    row("plain.otf", "Tarn Ink", "Bold");
    row("typographic.ttf", "Tarn Typo", "Light");
    row("typographic.otf", "Tarn Typo Cff", "Black");
    row("plain.woff", "Tarn Woff", "Regular");
    row("typographic.woff", "Tarn Woff Typo", "Thin");
    row("plain.woff2", "Tarn Woff Two", "Regular");
    row("typographic.woff2", "Tarn Woff Two Typo", "Heavy");
    row("collection.ttc", "Tarn First", "Regular");
    row("suitcase.dfont", "Tarn Suitcase", "Regular");
    row("variable.ttf", "Tarn Variable", "Regular");
    row("wws.ttf", "Tarn Wide", "Condensed Bold");
    row("mac.ttf", "Tarn Café", "Regular");
    row("languages.ttf", "Tarn Languages", "Regular");
    row("japanese.ttf", "ターン 漢字", "標準");
    row("marks.ttf", "Tarn, Comma [Bracket]", "Regular");
    row("spaces.ttf", "Tarn   Spaces", "Extra  Bold");
    row("nostyle.ttf", "Tarn Nostyle", "");
  }

  void tellsFamilyAndStyle() {
    QFETCH(QString, family);
    QFETCH(QString, style);
    const auto names = fonts.names(fixtures + QLatin1String(QTest::currentDataTag()));
    QVERIFY(names);
    QCOMPARE(names->family, family);
    QCOMPARE(names->style, style.isEmpty() ? std::nullopt : std::optional(style));
  }

  void hasNoNamesOfWhatIsNoFont_data() {
    QTest::addColumn<QByteArray>("content");
    const QByteArray font = contentOf(fixtures + "plain.ttf");
    QByteArray crowd = contentOf(fixtures + "collection.ttc");
    qToBigEndian(quint32(100'000), crowd.data() + 8);
    crowd.insert(16, QByteArray(4 * 100'000, '\0'));
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("The quick brown fox\n").repeated(100);
    QTest::newRow("only a beginning") << font.left(200);
    QTest::newRow("only a header") << QByteArray("\0\1\0\0", 4);
    QTest::newRow("a web font's header") << QByteArray("wOF2") + QByteArray(44, '\xff');
    QTest::newRow("a bitmap font") << QByteArray(
        "STARTFONT 2.1\nFONT x\nSIZE 8 75 75\nFONTBOUNDINGBOX 8 8 0 0\nSTARTPROPERTIES 1\n"
        "FAMILY_NAME \"Tarn\"\nENDPROPERTIES\nCHARS 1\nSTARTCHAR A\nENCODING 65\nSWIDTH 8 0\n"
        "DWIDTH 8 0\nBBX 8 8 0 0\nBITMAP\nFF\nFF\nFF\nFF\nFF\nFF\nFF\nFF\nENDCHAR\nENDFONT\n");
    QTest::newRow("a crowd of faces") << crowd;
    QTest::newRow("no family") << contentOf(fixtures + "nofamily.ttf");
  }

  void hasNoNamesOfWhatIsNoFont() {
    QFETCH(QByteArray, content);
    TestServices disk;
    const QString path = disk.path("a.otf"), pipe = disk.path("pipe.otf");
    QVERIFY(writeFile(path, content));
    QVERIFY(!fonts.names(path));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& other : {pipe, disk.folder.path(), disk.path("missing.otf"), QString()}) {
      QVERIFY(!fonts.names(other));
      fonts.registerForProcess(other);
    }
  }

  void textDrawsInTheFamily_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("families");  // the one that is told first
    QTest::addColumn<int>("width");
    const auto row = [](const char* file, const QStringList& families, int width) {
      QTest::newRow(file) << QString::fromLatin1(file) << families << width;
    };
    row("plain.ttf", {"Tarn Test"}, 200);
    row("plain.otf", {"Tarn Ink"}, 240);
    row("typographic.ttf", {"Tarn Typo", "Tarn Typo Light"}, 280);
    row("typographic.otf", {"Tarn Typo Cff", "Tarn Typo Cff Black"}, 320);
    row("plain.woff", {"Tarn Woff"}, 360);
    row("typographic.woff", {"Tarn Woff Typo"}, 400);
    row("plain.woff2", {"Tarn Woff Two"}, 440);
    row("typographic.woff2", {"Tarn Woff Two Typo", "Tarn Woff Two Typo Heavy"}, 480);
    row("wws.ttf", {"Tarn Wide", "Tarn Wide Condensed"}, 520);
    row("mac.ttf", {QStringLiteral("Tarn Café")}, 560);
    row("nostyle.ttf", {"Tarn Nostyle"}, 600);
    row("variable.ttf", {"Tarn Variable"}, 500);
    row("languages.ttf", {"Tarn Languages", "Tarn Deutsch", QStringLiteral("ターン")}, 720);
    row("japanese.ttf", {QStringLiteral("ターン 漢字")}, 760);
    row("spaces.ttf", {"Tarn   Spaces"}, 880);
    row("collection.ttc", {"Tarn First"}, 800);
    row("suitcase.dfont", {"Tarn Suitcase"}, 210);
  }

  void textDrawsInTheFamily() {
    QFETCH(QString, file);
    QFETCH(QStringList, families);
    QFETCH(int, width);
    QVERIFY(drawnBox(families.first()) != boxOfWidth(width));
    fonts.registerForProcess(fixtures + file);
    QCOMPARE(fonts.names(fixtures + file)->family, families.first());
    for (const QString& family : families) QCOMPARE(drawnBox(family), boxOfWidth(width));
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

  void survivesDamage() {
    TestServices disk;
    QRandomGenerator random(7);
    int number = 0;
    for (const QString& name : QDir(fixtures).entryList({"*.?tf", "*.ttc", "*.woff*", "*.dfont"})) {
      const QByteArray whole = contentOf(fixtures + name);
      for (int round = 0; round < 20; ++round) {
        QByteArray damaged = whole;
        for (int count = random.bounded(1, 8); count > 0; --count) {
          damaged[random.bounded(int(damaged.size()))] = char(random.bounded(256));
        }
        if (round % 4 == 0) damaged.truncate(random.bounded(int(damaged.size())));
        const QString path = disk.path(QString::number(++number));
        QVERIFY(writeFile(path, damaged));
        fonts.registerForProcess(path);
        if (const auto names = fonts.names(path)) {
          QVERIFY(!names->family.isEmpty());
          drawnBox(names->family);
        }
      }
    }
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
