#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QTest>

#include <sys/stat.h>

using namespace tarnloft;

namespace {

struct Package {
  TestServices disk;
  QString root = disk.path("p.tarnloft");
  QString source = disk.path("source");

  Package() {
    QDir().mkpath(root + "/assets");
    writeFile(source, "content");
  }
  std::shared_ptr<OpenFolder> open(const char* name = "assets") const {
    return disk.files.openFolder(root + '/' + name, root).value_or(nullptr);
  }
};

}  // namespace

class TestOpenFolder : public QObject {
  Q_OBJECT

 private slots:
  void takesFilesInWhereverItIsMoved() {
    Package package;
    const auto folder = package.open();
    QVERIFY(folder);
    QCOMPARE(*folder->path(), QFileInfo(package.root + "/assets").canonicalFilePath());
    for (const char* name : {"a (deleted)", "b"}) {
      const QString moved = package.disk.path(name);
      QVERIFY(QDir().rename(package.root, moved));
      QVERIFY(folder->copyIn(package.source, QString("copied to ") + name));
      QVERIFY(folder->writeIn("written", QString("written to ") + name));
      QCOMPARE(*folder->path(), QFileInfo(moved + "/assets").canonicalFilePath());
      QCOMPARE(contentOf(moved + "/assets/copied to " + name), "content");
      QCOMPARE(contentOf(moved + "/assets/written to " + name), "written");
      package.root = moved;
    }
    QCOMPARE(namesIn(package.root + "/assets").size(), 4);
  }

  void takesNothingInOnceDeleted() {
    Package package;
    const auto folder = package.open();
    QVERIFY(folder && QDir(package.root).removeRecursively());
    for (int again = 0; again < 2; ++again) {
      QVERIFY(!folder->copyIn(package.source, "copied"));
      QVERIFY(!folder->writeIn("written", "written"));
      QVERIFY(!folder->path());
      QVERIFY(QDir().mkpath(package.root + "/assets"));  // another one in its place
    }
    QCOMPARE(namesIn(package.root + "/assets"), QStringList());
  }

  void isOpenedOnlyInside() {
    const Cases<QString, bool> cases{{"inside", "p/assets", true},
                                     {"the root", "p", true},
                                     {"a link to the inside", "p/in", true},
                                     {"an absolute link to the inside", "p/absolute", true},
                                     {"the root by another way", "link", true},
                                     {"a link to the outside", "p/out", false},
                                     {"beside", "p2", false},
                                     {"above", "p/..", false},
                                     {"a file", "p/assets/file", false},
                                     {"nothing", "p/missing", false}};
    cases.check([&](const QString& path, bool opens) {
      TestServices disk;
      QVERIFY(writeFile(disk.path("p/assets/file"), "x") && QDir().mkpath(disk.path("p2")));
      QVERIFY(QFile::link("assets", disk.path("p/in")) && QFile::link("../p2", disk.path("p/out")));
      QVERIFY(QFile::link(disk.path("p/assets"), disk.path("p/absolute")));
      QVERIFY(QFile::link("p", disk.path("link")));
      QCOMPARE(disk.files.openFolder(disk.path(path), disk.path("p")).has_value(), opens);
    });
  }

  void refusesNames() {
    Package package;
    const QString assets = package.root + "/assets";
    QVERIFY(writeFile(assets + "/taken", "old") && QDir().mkpath(assets + "/folder"));
    QVERIFY(QDir().mkpath(assets + "/sub"));
    const auto folder = package.open();
    QVERIFY(folder);
    for (const QString& name :
         QStringList{"", ".", "..", "../out", "sub/file", "taken", "folder", QString(300, 'x')}) {
      QVERIFY2(!folder->copyIn(package.source, name), qPrintable(name));
      QVERIFY2(!folder->writeIn("new", name), qPrintable(name));
    }
    QVERIFY(!folder->copyIn(package.root, "a folder") && !folder->copyIn("missing", "x"));
    QCOMPARE(namesIn(assets), QStringList({"folder", "sub", "taken"}));
    QCOMPARE(contentOf(assets + "/taken"), "old");
  }
};

QTEST_APPLESS_MAIN(TestOpenFolder)
#include "tst_openfolder.moc"
