// Drags between processes, with the pointer of an X server that nobody else uses.
#include "document/Package.h"
#include "model/Json.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QImage>
#include <QProcess>
#include <QTest>
#include <QUrl>

using namespace tarnloft;

namespace {

constexpr int tiffSize = 100;
constexpr int patience = 20'000;  // ms; a busy machine is no failure

// A program with its lines of output.
class Program {
 public:
  Program(const QString& path, const QStringList& arguments) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(path, arguments);
  }
  ~Program() {
    process_.kill();
    process_.waitForFinished();
  }
  // Until a line begins so; gives it, or an empty text.
  QString line(const QString& beginning) {
    (void)QTest::qWaitFor([&] { return !find(beginning).isEmpty() || !isRunning(); }, patience);
    return find(beginning);
  }
  QStringList lines() {
    output_ += QString::fromUtf8(process_.readAllStandardOutput());
    return output_.split('\n');
  }
  bool isRunning() const { return process_.state() != QProcess::NotRunning; }

 private:
  QString find(const QString& beginning) {
    for (const QString& each : lines()) {
      if (each.startsWith(beginning)) return each;
    }
    return {};
  }
  QProcess process_;
  QString output_;
};

bool point(const QStringList& words) { return QProcess::execute("xdotool", words) == 0; }

QStringList moveTo(const QPoint& at) {
  return {"mousemove", QString::number(at.x()), QString::number(at.y()), "sleep", "0.02"};
}

// Drags with the pointer from one window's middle to another's, or within one, and lets go once
// `isDone` says so; until then it stays there as a hand does, never quite still.
template <class Condition>
bool drag(QPoint from, QPoint to, Condition&& isDone) {
  QStringList way = moveTo(from) + QStringList{"mousedown", "1", "sleep", "0.05"};
  for (int i = 1; i <= 10; ++i) way += moveTo(from + (to - from) * i / 10);
  const bool hasMoved = point(way);
  const auto stay = [&] { return point(moveTo(to + QPoint(1, 0)) + moveTo(to)); };
  const bool hasHappened = QTest::qWaitFor([&] { return stay() && isDone(); }, patience);
  return point({"mouseup", "1"}) && hasMoved && hasHappened;
}

// Drops onto the receiver. Letting go before the source has its answer would drop nothing; the
// source tells of a new place only once it has the answer for the one before.
bool drag(QPoint from, QPoint to, Program& receiver) {
  std::optional<qsizetype> onArrival;
  return drag(from, to, [&] {
    const qsizetype told = receiver.lines().count("OVER");
    if (!onArrival) onArrival = told;
    return told >= *onArrival + 2;
  });
}

const QPoint left(100, 75), right(500, 75);

// A package whose first section holds one item, and whose second is empty.
struct Tiles {
  TestServices disk;
  QString package = disk.path("Acme.tarnloft");

  explicit Tiles(const ItemPayload& payload = picture("AcmeLogo.png")) {
    Brand brand = Brand::create("Acme");
    brand.sections[0].items = {Item::create(payload)};
    writeFile(Package::manifestPath(package), *encode(brand));
    writeFile(Package::assetsPath(package) + "/stored.png", "the picture's bytes");
    qputenv("TMPDIR", QFile::encodeName(disk.folder.path()));
  }
  ~Tiles() { qunsetenv("TMPDIR"); }
  static ItemPayload picture(const QString& name) {
    return ImagePayload{{"stored.png", name}, "Logo"};
  }
  Program window(const QPoint& at, int size = tiffSize) const {
    return Program(TILE_WINDOW, {QString::number(at.x() - 100), QString::number(at.y() - 75),
                                 package, QString::number(size)});
  }
};

Program target(const QStringList& formats) {
  return Program(
      XDND_TARGET,
      QStringList{QString::number(right.x() - 100), QString::number(right.y() - 75)} + formats);
}

Program source(const QStringList& what) {
  return Program(
      PLAIN_SOURCE,
      QStringList{QString::number(left.x() - 100), QString::number(left.y() - 75)} + what);
}

// The bytes that a target got of a format.
QByteArray dataOf(Program& program, const QString& format) {
  return QByteArray::fromHex(program.line("DATA " + format).section(' ', 3).toLatin1());
}

}  // namespace

class TestDragging : public QObject {
  Q_OBJECT

 private slots:
  void anotherProgramGetsAFileUnderTheClientsName() {
    const Tiles tiles;
    Program window = tiles.window(left), other = target({"text/uri-list", "UTF8_STRING"});
    QVERIFY(!window.line("READY").isEmpty() && !other.line("READY").isEmpty());
    QVERIFY(drag(left, right, other));
    QVERIFY(!other.line("FINISHED").isEmpty());
    const QString path = tiles.disk.path("tarnloft-drag/AcmeLogo.png");
    QCOMPARE(dataOf(other, "text/uri-list"), QUrl::fromLocalFile(path).toEncoded() + "\r\n");
    QCOMPARE(dataOf(other, "UTF8_STRING"), path.toUtf8());
    QVERIFY(!window.line("DRAGGED").isEmpty());
    QCOMPARE(contentOf(path), "the picture's bytes");
  }

  void anotherProgramSeesNoPrivateType() {
    const Tiles tiles;
    const QString privateType = "com.quillmoor.tarnloft.item";
    Program window = tiles.window(left), other = target({privateType});
    QVERIFY(!window.line("READY").isEmpty() && !other.line("READY").isEmpty());
    QVERIFY(drag(left, right, other));
    QVERIFY(!other.line("FINISHED").isEmpty());
    const QString offered = other.line("TYPES");
    QVERIFY2(offered.contains(" text/uri-list"), qPrintable(offered));
    QVERIFY2(!other.lines().join('\n').remove("REFUSED " + privateType).contains("quillmoor"),
             qPrintable(offered));
    // Not even by its name.
    QVERIFY(!other.line("REFUSED " + privateType).isEmpty());
  }

  void thePictureIsMadeWhenAskedFor() {
    const Tiles tiles;
    Program window = tiles.window(left);
    QVERIFY(!window.line("READY").isEmpty());
    {
      Program other = target({"text/uri-list"});
      QVERIFY(!other.line("READY").isEmpty());
      QVERIFY(drag(left, right, other));
      QVERIFY(other.line("TYPES").contains(" image/tiff"));
      QVERIFY(!other.line("FINISHED").isEmpty());
      QVERIFY(!window.line("DRAGGED").isEmpty());
    }
    QVERIFY(!window.lines().join('\n').contains("TIFF"));
    Program other = target({"image/tiff"});
    QVERIFY(!other.line("READY").isEmpty());
    QVERIFY(drag(left, right, other));
    QVERIFY(!other.line("FINISHED").isEmpty());
    QCOMPARE(dataOf(other, "image/tiff"), QByteArray(tiffSize, 't'));
    QCOMPARE(window.line("TIFF"), "TIFF " + tiles.package + "/assets/stored.png");
  }

  void aPictureTooLargeForTheServerIsLeftOut() {
    const Tiles tiles;
    Program window = tiles.window(left, 20'000'000),
            other = target({"image/tiff", "text/uri-list"});
    QVERIFY(!window.line("READY").isEmpty() && !other.line("READY").isEmpty());
    QVERIFY(drag(left, right, other));
    QCOMPARE(other.line("DATA image/tiff"), "DATA image/tiff 0 ");
    QVERIFY(!dataOf(other, "text/uri-list").isEmpty());
    QVERIFY(window.isRunning());
  }

  void aColourOffersNothing() {
    const Tiles tiles(ColorPayload{{"#123456", {}, {}}});
    Program window = tiles.window(left), other = target({"text/uri-list"});
    QVERIFY(!window.line("READY").isEmpty() && !other.line("READY").isEmpty());
    QVERIFY(drag(left, right, other));
    QVERIFY(!window.line("DRAGGED").isEmpty());
    QVERIFY(other.lines().join('\n').indexOf("DATA") < 0);
  }

  // Also where nobody composes the screen, which would show the ground of its window.
  void theCarriedPictureHasItsOwnShape() {
    const Tiles tiles;
    Program window = tiles.window(left);
    QVERIFY(!window.line("READY").isEmpty());
    QVERIFY(drag(left, left + QPoint(60, 40),
                 [&] { return window.lines().filter("PICTURE").size() > 0; }));
    QCOMPARE(window.line("PICTURE"), "PICTURE #0000ff");
  }

  void aDragWithinTheWindowMovesTheTile() {
    const Cases<bool> cases{{"a picture", true},
                            {"a colour, which shows no format to anyone", false}};
    cases.check([&](bool hasFile) {
      const Tiles tiles(hasFile ? Tiles::picture("Logo.png")
                                : ItemPayload(ColorPayload{{"#123456", "Logo", {}}}));
      Program window = tiles.window(left);
      QVERIFY(!window.line("READY").isEmpty());
      QVERIFY(drag(left, left + QPoint(60, 40), window));
      QVERIFY(!window.line("ITEMS | | Logo").isEmpty());
      QVERIFY(!window.line("DRAGGED").isEmpty());
      QCOMPARE(window.line("DROP"), "DROP taken");
      // It came as the tile that it is, not as its file.
      QCOMPARE(QDir(Package::assetsPath(tiles.package)).entryList(QDir::Files).size(), 1);
    });
  }

  void aTileOfAnotherProcessComesAsAFile() {
    const Tiles tiles;
    Program from = tiles.window(left), to = tiles.window(right);
    QVERIFY(!from.line("READY").isEmpty() && !to.line("READY").isEmpty());
    QVERIFY(drag(left, right, to));
    QCOMPARE(to.line("ITEMS"), "ITEMS | Logo | AcmeLogo");
    QVERIFY(!from.lines().join('\n').contains("ITEMS"));
  }

  void filesOfAnotherProgramComeInOrder() {
    const Tiles tiles;
    QStringList paths;
    for (const char* name : {"b ü.png", "a#1.mp4", "c%20.pdf"}) {
      paths << tiles.disk.path(QString("from/") + name);
      QVERIFY(writeFile(paths.last(), "x"));
    }
    Program from = source(paths), to = tiles.window(right);
    QVERIFY(!from.line("READY").isEmpty() && !to.line("READY").isEmpty());
    QVERIFY(drag(left, right, to));
    QVERIFY(!to.line("ITEMS | Logo | b ü a#1 c%20").isEmpty());
  }

  void aPictureOfAnotherProgramComesWithItsName() {
    const Tiles tiles;
    Program from = source({"picture", "https://pictures.example/Hero%20Shot.jpg"}),
            to = tiles.window(right);
    QVERIFY(!from.line("READY").isEmpty() && !to.line("READY").isEmpty());
    QVERIFY(drag(left, right, to));
    QCOMPARE(to.line("ITEMS"), "ITEMS | Logo | Hero Shot");
    const QDir assets(Package::assetsPath(tiles.package));
    for (const QString& name : assets.entryList({"*.png"}, QDir::Files)) {
      if (name == "stored.png") continue;
      const QImage image(assets.filePath(name));
      QCOMPARE(image.size(), QSize(300, 200));
      QCOMPARE(image.pixelColor(5, 5), QColor(10, 200, 30, 128));
    }
    QCOMPARE(assets.entryList(QDir::Files).size(), 2);
  }
};

QTEST_GUILESS_MAIN(TestDragging)
#include "tst_dragging.moc"
