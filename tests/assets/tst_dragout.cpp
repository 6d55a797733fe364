#include "assets/DragFileExport.h"
#include "assets/TileDrag.h"
#include "model/Uuid.h"
#include "testing/Cases.h"
#include "testing/FakeDrops.h"
#include "testing/FakeMedia.h"
#include "testing/TestDocument.h"

#include <QTest>

using namespace tarnloft;

namespace {

// A document whose files are "<stored> of <brand folder>"; drags copy into a folder of the test's.
struct Dragging : TestDocument {
  FakeTypes types;
  FakeImages images;
  QString temporary = disk.path("tmp");
  QString folder = temporary + "/tarnloft-drag";

  Dragging() {
    QDir().mkpath(temporary);
    qputenv("TMPDIR", temporary.toUtf8());
  }
  ~Dragging() { qunsetenv("TMPDIR"); }

  AssetRef asset(const QString& filename, const QString& originalName) {
    writeFile(assetPath(filename), filename.toUtf8());
    return {filename, originalName};
  }
  DragServices services() { return {disk.files, types, images}; }
  DragItem drag(const Item& item) {
    return TileDrag::makeDragProvider(services(), document->files(), item);
  }
};

Item image(const AssetRef& asset) { return Item::create(ImagePayload{asset, std::nullopt}); }

}  // namespace

class TestDragOut : public QObject {
  Q_OBJECT

 private slots:
  void copiesUnderTheClientsName() {
    const QString nul = "a" + QString(QChar(u'\0')) + "b";
    const QList<QPair<QString, QString>> copies{{"AcmeLogo.png", "AcmeLogo.png"},
                                                {".png", ".png"},
                                                {"../../../etc/passwd", "passwd"},
                                                {"a/Logo.png/", "Logo.png"},
                                                {"", "stored.png"},
                                                {".", "stored.png"},
                                                {"..", "stored.png"},
                                                {nul, "stored.png"}};
    for (const auto& [originalName, copy] : copies) {
      Dragging dragging;
      (void)dragging.asset("stored.png", "");
      const QString url = DragFileExport::tempURL(dragging.disk.files,
                                                  dragging.assetPath("stored.png"), originalName);
      QCOMPARE(url, dragging.folder + '/' + copy);
      QCOMPARE(contentOf(url), "stored.png");
      QCOMPARE(namesIn(dragging.temporary), QStringList("tarnloft-drag"));
    }
  }

  void theNewestDragReplacesWhateverStandsThere() {
    for (const QString what : {"file", "folder", "link", "link to a folder"}) {
      Dragging dragging;
      (void)dragging.asset("stored.png", "");
      const QString target = dragging.folder + "/Logo.png",
                    other = dragging.disk.path("other/file");
      QVERIFY(writeFile(other, "other") && QDir().mkpath(dragging.folder));
      if (what == "file") QVERIFY(writeFile(target, "old"));
      if (what == "folder") QVERIFY(writeFile(target + "/inside/x", "old"));
      if (what == "link") QVERIFY(QFile::link(other, target));
      if (what == "link to a folder") QVERIFY(QFile::link(QFileInfo(other).path(), target));
      for (int again = 0; again < 2; ++again) {
        QCOMPARE(DragFileExport::tempURL(dragging.disk.files, dragging.assetPath("stored.png"),
                                         "Logo.png"),
                 target);
      }
      QVERIFY2(!QFileInfo(target).isSymLink(), qPrintable(what));
      QCOMPARE(contentOf(target), "stored.png");
      QCOMPARE(contentOf(other), "other");
    }
  }

  void fallsBackToTheAssetItself() {
    for (const QString fault : {"asset gone", "no temporary folder"}) {
      Dragging dragging;
      (void)dragging.asset("stored.png", "");
      const QString path = dragging.assetPath("stored.png");
      QVERIFY(writeFile(dragging.folder + "/Logo.png", "of another brand"));
      if (fault == "asset gone") QVERIFY(QFile::remove(path));
      if (fault == "no temporary folder") {
        qputenv("TMPDIR", QFile::encodeName(dragging.folder + "/Logo.png"));
      }
      QCOMPARE(DragFileExport::tempURL(dragging.disk.files, path, "Logo.png"), path);
    }
  }

  void handsOutByKind() {
    Dragging dragging;
    const AssetRef picture = dragging.asset("1", "Client.png"),
                   bare = dragging.asset("2", "Client"), clip = dragging.asset("3", "Client.mp4"),
                   font = dragging.asset("4", "Client.ttf");
    const LogoVariant mono{QUuid::createUuid(), clip, LogoRole::mono, {}},
        primary{QUuid::createUuid(), picture, LogoRole::primary, {}};
    const Cases<ItemPayload, QString, bool> cases{
        {"picture", ImagePayload{picture, {}}, "Client.png", true},
        {"without extension", ImagePayload{bare, {}}, "Client", false},
        {"video", VideoPayload{clip, {}}, "Client.mp4", false},
        {"font", FontPayload{{"F", {}, {}, font, {}}}, "Client.ttf", false},
        {"logo", LogoPayload{{"Logo", {mono, primary}}}, "Client.png", true},
        {"empty logo", LogoPayload{{"Logo", {}}}, "", false},
        {"color", ColorPayload{{"#123456", {}, {}}}, "", false},
        {"lost image", ImagePayload{{"lost", "lost.png"}, {}}, "", false}};
    cases.check([&](const ItemPayload& payload, const QString& file, bool tiff) {
      const Item item = Item::create(payload);
      const DragItem drag = dragging.drag(item);
      QCOMPARE(drag.file.value_or(QString()), file.isEmpty() ? file : dragging.folder + '/' + file);
      QCOMPARE(bool(drag.makeTiff), tiff);
      QCOMPARE(drag.payload->type, "com.quillmoor.tarnloft.item");
      QCOMPARE(drag.payload->bytes, canonicalString(item.id).toUtf8());
      if (!file.isEmpty()) QCOMPARE(drag.suggestedName, file.section('.', 0, 0));
    });
  }

  void aPictureHasATiffOnDemand() {
    Dragging dragging;
    dragging.images.told = ImageProperties{{4, 2}, false, std::nullopt};
    const DragItem drag = dragging.drag(image(dragging.asset("stored.jpg", "Photo.jpg")));
    QVERIFY(dragging.images.begun().isEmpty());
    QVERIFY(QFile::remove(*drag.file));
    QCOMPARE(drag.makeTiff(10'000)->size(), 4000);
    QCOMPARE(dragging.images.begun(),
             QStringList(dragging.assetPath("stored.jpg") + " tiff 4x2 1"));
  }

  void handsOutNothingFromOutsideThePackage() {
    Dragging dragging;
    QVERIFY(writeFile(dragging.disk.path("secret.png"), "secret"));
    QVERIFY(QFile::link(dragging.disk.path("secret.png"), dragging.assetPath("out.png")));
    QVERIFY(QFile::link(dragging.disk.path("gone"), dragging.assetPath("gone.png")));
    QVERIFY(QDir().mkpath(dragging.assetPath("folder.png")));
    for (const char* bad :
         {"../../secret.png", "", ".", "..", "out.png", "folder.png", "gone.png"}) {
      const DragItem drag = dragging.drag(image({bad, "Logo.png"}));
      QVERIFY2(!drag.file && !drag.makeTiff && drag.payload, bad);
      QVERIFY2(!QFileInfo::exists(dragging.folder + "/Logo.png"), bad);
    }
  }

  void severalFilesComeInTheSectionsOrder() {
    Dragging dragging;
    const QList<AssetRef> assets{dragging.asset("1", "One.png"),  dragging.asset("2", "Same.png"),
                                 dragging.asset("3", "same.PNG"), {"lost", "Lost.png"},
                                 {"../x", "Outside.png"},         dragging.asset("4", "noname")};
    const QStringList urls =
        TileDrag::exportURLs(dragging.disk.files, dragging.document->files(), assets);
    QStringList expected;
    for (const char* name : {"One.png", "Same.png", "same 2.PNG", "noname"})
      expected << dragging.folder + "/" + name;
    QCOMPARE(urls, expected);
    QCOMPARE(contentOf(expected.at(2)), "3");
  }
};

QTEST_GUILESS_MAIN(TestDragOut)
#include "tst_dragout.moc"
