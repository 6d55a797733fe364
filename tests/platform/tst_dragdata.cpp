#include "platform/desktop/dragging/DragData.h"
#include "platform/desktop/dragging/MimeDrops.h"
#include "testing/Cases.h"

#include <QImage>
#include <QSysInfo>
#include <QTest>
#include <QUrl>

using namespace tarnloft;

namespace {

const QString privateType = "com.quillmoor.tarnloft.item";

DragItem file(const QString& path) { return {path, {}, std::nullopt, nullptr}; }

DragItem tile() {
  return {"/tmp/a b.png", "a b", PrivatePayload{privateType, "id"},
          [](qint64) { return std::optional<QByteArray>("tiff"); }};
}

// What a thing answers, or "none".
QByteArray dataOf(DroppedThing& thing, const QString& type) {
  QByteArray result = "no answer";
  thing.loadData(type, [&](const auto& bytes) { result = bytes.value_or("none"); });
  return result;
}

QString pathOf(DroppedThing& thing) {
  QString result = "no answer";
  thing.loadURL([&](const auto& path) { result = path.value_or("none"); });
  return result;
}

// Of another program: its formats as they come.
std::unique_ptr<QMimeData> foreign(const QList<QPair<QString, QByteArray>>& formats) {
  auto data = std::make_unique<QMimeData>();
  for (const auto& [format, bytes] : formats) data->setData(format, bytes);
  return data;
}

}  // namespace

class TestDragData : public QObject {
  Q_OBJECT

 private slots:
  void listsFilesForEveryReader() {
    const DragData data({file("/tmp/a b.png"), DragItem(), file("/tmp/100% #1 ü.svg")});
    QCOMPARE(data.data("text/uri-list"),
             "file:///tmp/a%20b.png\r\nfile:///tmp/100%25%20%231%20%C3%BC.svg\r\n");
    QCOMPARE(data.text(), QString("/tmp/a b.png\n/tmp/100% #1 ü.svg"));
    const QList<QUrl> urls{QUrl::fromLocalFile("/tmp/a b.png"),
                           QUrl::fromLocalFile("/tmp/100% #1 ü.svg")};
    QCOMPARE(data.urls(), urls);
  }

  void makesItsPictureOnceAndOnDemand() {
    int made = 0;
    DragItem item = file("/tmp/a.png");
    item.makeTiff = [&](qint64) -> std::optional<QByteArray> {
      return ++made == 1 ? "picture" : "another";
    };
    const DragData data({item});
    (void)data.formats();
    (void)data.urls();
    QCOMPARE(made, 0);
    QCOMPARE(data.data("image/tiff"), "picture");
    QCOMPARE(data.data("image/tiff"), "picture");
    QCOMPARE(made, 1);
    item.makeTiff = [](qint64) { return std::nullopt; };
    QCOMPARE(DragData({item}).data("image/tiff"), QByteArray());
  }

  void readsItsOwnDrags() {
    QThreadPool workers;
    const MimeDrops drops(workers);
    DragItem colour = tile();
    colour.file.reset();
    colour.makeTiff = nullptr;
    const DragData data({colour, tile()});
    const DroppedThings things = drops.things(data);
    QCOMPARE(things.size(), 2);
    QVERIFY(things[0]->conforms(privateType) && !things[0]->conforms(DropType::fileURL));
    QVERIFY(things[1]->conforms(privateType) && things[1]->conforms(DropType::fileURL));
    QCOMPARE(dataOf(*things[0], privateType), "id");
    QCOMPARE(dataOf(*things[0], DropType::image), "none");
    QCOMPARE(dataOf(*things[1], DropType::image), "tiff");
    QCOMPARE(pathOf(*things[0]), "none");
    QCOMPARE(pathOf(*things[1]), "/tmp/a b.png");
    QCOMPARE(things[1]->suggestedName(), "a b");
    QVERIFY(drops.offers(data, privateType) && drops.offers(data, DropType::fileURL));
    QVERIFY(!drops.offers(data, "com.quillmoor.tarnloft.brand"));
    QVERIFY(!drops.offers(DragData({colour}), DropType::fileURL));
  }

  void readsFilesInOrder() {
    const Cases<QByteArray, QStringList> cases{
        {"two", "file:///b%20c.png\r\nfile:///a.png\r\n", {"/b c.png", "/a.png"}},
        {"a comment", "# files\r\nfile:///a.png\r\n", {"/a.png"}},
        {"one slash", "file:/a.png\r\n", {"/a.png"}},
        {"another machine", "file://elsewhere.example/a.png\r\n", {}},
        {"the web among files", "https://x.example/a.png\r\nfile:///b.png\r\n", {"/b.png"}},
        {"nothing", "", {}}};
    cases.check([&](const QByteArray& list, const QStringList& paths) {
      QThreadPool workers;
      const MimeDrops drops(workers);
      const auto drop = foreign({{"text/uri-list", list}, {"text/plain", "x"}});
      QStringList found;
      for (const auto& thing : drops.things(*drop)) {
        QVERIFY(thing->conforms(DropType::fileURL) && !thing->conforms(privateType));
        found << pathOf(*thing);
      }
      QCOMPARE(found, paths);
      QCOMPARE(drops.offers(*drop, DropType::fileURL), !paths.isEmpty());
      const auto named = foreign(
          {{"text/uri-list", "file://" + QSysInfo::machineHostName().toUtf8() + "/a.png\r\n"}});
      QCOMPARE(pathOf(*drops.things(*named).at(0)), "/a.png");
    });
  }

  void readsPictures() {
    QThreadPool workers;
    const MimeDrops drops(workers);
    using Formats = QList<QPair<QString, QByteArray>>;
    const QByteArray address("h\0t\0t\0p\0:\0/\0/\0x\0/\0a\0.\0g\0i\0f\0\n\0A\0", 34);
    const Cases<Formats, QByteArray, QString> cases{
        {"the best of many", Formats{{"image/bmp", "bmp"}, {"image/png", "png"}}, "png", ""},
        {"another format", Formats{{"text/html", "<p>"}, {"image/jpeg", "jpeg"}}, "jpeg", ""},
        {"named by the web",
         Formats{{"text/uri-list", "https://x.example/a/Hero%20%C3%BC.jpg?x=1\r\n"},
                 {"image/png", "png"}},
         "png", "Hero ü.jpg"},
        {"a data address",
         Formats{{"text/uri-list", "data:image/png;base64,AAAA/BBBB"}, {"image/png", "x"}}, "x",
         ""},
        {"an empty picture", Formats{{"image/png", ""}}, "none", ""},
        {"a picture to save",
         Formats{{"application/octet-stream", "GIF89a"},
                 {"XdndDirectSave0", ""},
                 {"text/x-moz-url", address}},
         "GIF89a", "a.gif"},
        {"no picture to save",
         Formats{{"application/octet-stream", "%PDF-1.4"}, {"XdndDirectSave0", ""}}, "none", ""}};
    cases.check([&](const Formats& formats, const QByteArray& bytes, const QString& name) {
      const auto drop = foreign(formats);
      QVERIFY(drops.offers(*drop, DropType::image));
      const DroppedThings things = drops.things(*drop);
      QCOMPARE(things.size(), 1);
      QVERIFY(things[0]->conforms(DropType::image) && !things[0]->conforms(DropType::fileURL));
      QCOMPARE(dataOf(*things[0], DropType::image), bytes);
      QCOMPARE(things[0]->suggestedName(), name);
    });
    QVERIFY(drops.things(*foreign({{"text/plain", "x"}})).isEmpty());
    for (const char* list : {"", "https://x.example/a", "file:///tmp", "file:///tmp\r\nfile:///"}) {
      const auto nothing = foreign({{"text/uri-list", list}, {"text/x-moz-url", "h"}});
      QVERIFY(!drops.offers(*nothing, DropType::image));
      QTRY_VERIFY(!drops.offers(*nothing, DropType::fileURL));  // a slow disk tells late
    }
  }

  void encodesAPictureInTheBackground() {
    QThreadPool workers;
    const MimeDrops drops(workers);
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(QColor(10, 20, 30, 40));
    QMimeData drop;
    drop.setImageData(image);
    QVERIFY(drops.offers(drop, DropType::image));
    std::optional<QByteArray> png;
    drops.things(drop).at(0)->loadData(DropType::image, [&](const auto& bytes) { png = bytes; });
    QVERIFY(!png);
    QTRY_VERIFY(png);
    QVERIFY(png->startsWith("\x89PNG"));
    QCOMPARE(QImage::fromData(*png).convertToFormat(QImage::Format_ARGB32), image);
  }
};

QTEST_GUILESS_MAIN(TestDragData)
#include "tst_dragdata.moc"
