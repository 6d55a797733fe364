#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace tarnloft;

namespace {

struct Tree {
  TestServices disk;
  QString root = disk.path("p.tarnloft");

  Tree() {
    writeFile(disk.path("secret"), "secret");
    writeFile(disk.path("p.tarnloft-other/x"), "other");
    writeFile(root + "/assets/a.png", "a");
    link("../../secret", "/assets/out");
    link("a.png", "/assets/in");
    link("in", "/assets/twice");
    link("../../p.tarnloft-other/x", "/assets/sibling");
    link("nowhere", "/assets/dangling");
    link("loop", "/assets/loop");
    ::symlink(QFile::encodeName(root + "/assets/a.png").constData(),
              QFile::encodeName(root + "/assets/absolute").constData());
  }
  void link(const char* target, const char* name) const {
    ::symlink(target, QFile::encodeName(root + QLatin1String(name)).constData());
  }
};

Result<void> replaced(FileStore& files, const QString& path, const QByteArray& content) {
  auto file = files.createTemporary(path);
  if (!file) return tl::unexpected(file.error());
  if (auto written = (*file)->write(content); !written) return written;
  return files.replace(**file, path);
}

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

class TestFileStore : public QObject {
  Q_OBJECT

 private slots:
  void opensOnlyWhatStandsInside() {
    const Tree tree;
    const auto opens = [&](const QString& name) {
      return tree.disk.files.open(tree.root + "/assets/" + name, tree.root).has_value();
    };
    for (const char* good : {"a.png", "in", "twice", "absolute", "../assets/a.png"}) {
      QVERIFY2(opens(good), good);
    }
    for (const char* bad :
         {"out", "sibling", "dangling", "loop", "missing", "../../secret", "", "."}) {
      QVERIFY2(!opens(bad), bad);
    }
    QVERIFY(!opens(QString("a.png") + QChar(u'\0')));
    QVERIFY(!tree.disk.files.open(tree.root + "/assets/a.png", QString()));  // inside of nothing
  }

  void tellsWhatIsntThereFromWhatFails() {
    using enum ErrorKind;
    using Kind = std::optional<ErrorKind>;
    const Tree tree;
    tree.link("/nowhere/at/all", "/assets/lost");
    const Cases<QString, Kind, Kind> cases{
        {"there", "a.png", {}, {}},
        {"missing", "missing", notFound, notFound},
        {"in a missing folder", "missing/file", notFound, notFound},
        {"in a file", "a.png/file", notFound, io},
        {"dangling", "dangling", {}, notFound},
        {"dangling, absolute", "lost", {}, notFound},
        {"a loop", "loop", {}, io},
        {"in a loop", "loop/file", io, io},
        {"outside", "out", {}, refused},
        {"too long", QString(300, 'x'), io, io}};
    const auto kindOf = [](const auto& result) {
      return result ? std::nullopt : Kind(result.error().kind);
    };
    cases.check([&](const QString& name, Kind identity, Kind open) {
      const QString path = tree.root + "/assets/" + name;
      QCOMPARE(kindOf(tree.disk.files.identity(path)), identity);
      QCOMPARE(kindOf(tree.disk.files.open(path, tree.root)), open);
    });
  }

  void listsHiddenNamesWhenAsked() {
    TestServices disk;
    for (const char* name : {"b", ".hidden", "..", "a/x", "...", "Z"}) {
      writeFile(disk.path(name), "x");
    }
    QCOMPARE(*disk.files.list(disk.folder.path()), QStringList({"Z", "a", "b"}));
    QCOMPARE(*disk.files.listAll(disk.folder.path()),
             QStringList({"...", ".hidden", "Z", "a", "b"}));
    QVERIFY(!disk.files.list(disk.path("missing")) && !disk.files.listAll(disk.path("b")));
  }

  void neverWaitsOnAPipe() {
    const Tree tree;
    const QString pipe = tree.root + "/assets/pipe";
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const auto file = tree.disk.files.open(pipe, tree.root);
    QVERIFY(!file);
    QCOMPARE(file.error().kind, ErrorKind::refused);
  }

  void refusesToReplaceWhatIsNoFile() {
    Tree tree;
    const QString pipe = tree.disk.path("pipe");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, tree.root}) {
      QVERIFY(!replaced(tree.disk.files, path, "x"));
      QVERIFY(!QFileInfo(path).isFile());
    }
    QVERIFY(QDir(tree.disk.folder.path())
                .entryList({".tarnloft-*"}, QDir::Hidden | QDir::Files)
                .isEmpty());
  }

  void keepsTheRightsOfAReplacedFile() {
    TestServices disk;
    const QString path = disk.path("file");
    QVERIFY(writeFile(path, "old"));
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), 06640), 0);
    QVERIFY(replaced(disk.files, path, "new"));
    QCOMPARE(contentOf(path), QByteArray("new"));
    struct stat info;
    QCOMPARE(::stat(QFile::encodeName(path).constData(), &info), 0);
    QCOMPARE(info.st_mode & 07777, 0640u);
  }

  void takesBackAndRepeats() {
    TestServices disk;
    auto file = disk.files.createTemporary(disk.path("x"));
    QVERIFY(file);
    QVERIFY((*file)->write("abcdef"));
    QVERIFY((*file)->truncate(4));
    QVERIFY((*file)->repeat(1, 3));
    QVERIFY((*file)->write("!"));
    QVERIFY(!(*file)->repeat(20, 5));  // stands beyond the end
    QVERIFY(disk.files.replace(**file, disk.path("x")));
    QCOMPARE(contentOf(disk.path("x")), QByteArray("abcdbcd!"));
  }

  void leavesNothingOfAFileThatFoundNoPlace() {
    TestServices disk;
    {
      auto file = disk.files.createTemporary(disk.path("x"));
      QVERIFY(file && (*file)->write("abc"));
      // Without a name from the start: not even a killed process leaves it behind.
      QCOMPARE(namesIn(disk.folder.path()), QStringList());
    }
    QCOMPARE(namesIn(disk.folder.path()), QStringList());
  }

  void makesParents() {
    TestServices disk;
    const QString deep = disk.path("a/b/c");
    QVERIFY(disk.files.makeFolder(deep));
    QVERIFY(disk.files.makeFolder(deep));
    QVERIFY(disk.files.makeFolder(disk.path("d/e/")));
    QVERIFY(QFileInfo(deep).isDir());
    QVERIFY(writeFile(disk.path("file"), "x"));
    QVERIFY(!disk.files.makeFolder(disk.path("file")));
    QVERIFY(!disk.files.makeFolder(disk.path("file/inside")));
  }

  void temporaryFoldersAreTheUsersOwn() {
    for (const QString inPlace : {"nothing", "folder", "file", "link", "foreign"}) {
      if (inPlace == "foreign" && ::geteuid() != 0) continue;
      TestServices disk;
      qputenv("TMPDIR", QFile::encodeName(disk.folder.path()));
      const QString path = disk.path("drags");
      if (inPlace == "file") QVERIFY(writeFile(path, "x"));
      if (inPlace == "link") QVERIFY(QFile::link(disk.folder.path(), path));
      if (inPlace == "folder" || inPlace == "foreign") {
        QCOMPARE(::mkdir(QFile::encodeName(path).constData(), 0777), 0);
      }
      if (inPlace == "foreign") QCOMPARE(::chown(QFile::encodeName(path).constData(), 12345, 0), 0);
      const bool isTaken = inPlace == "nothing" || inPlace == "folder";
      for (int again = 0; again < 2; ++again) {
        const auto folder = disk.files.makeTemporaryFolder("drags");
        QVERIFY2(folder, qPrintable(inPlace));
        QCOMPARE(*folder, isTaken ? path : path + '-' + QString::number(::geteuid()));
        struct stat info;
        QCOMPARE(::lstat(QFile::encodeName(*folder).constData(), &info), 0);
        QVERIFY(S_ISDIR(info.st_mode) && info.st_uid == ::geteuid());
        QCOMPARE(info.st_mode & 07777, 0700u);
      }
      qputenv("TMPDIR", QFile::encodeName(disk.path("missing")));
      QVERIFY(!disk.files.makeTemporaryFolder("drags"));
      qunsetenv("TMPDIR");
    }
  }

  void movesOnlyToAFreePlace() {
    TestServices disk;
    QVERIFY(writeFile(disk.path("old/kept"), "x"));
    QVERIFY(QDir().mkpath(disk.path("taken")));
    QVERIFY(!disk.files.moveFolder(disk.path("old"), disk.path("taken")));
    QVERIFY(disk.files.moveFolder(disk.path("old"), disk.path("new")));
    QCOMPARE(contentOf(disk.path("new/kept")), QByteArray("x"));
    QVERIFY(!disk.files.exists(disk.path("old")));
  }

  void followsLinksForPages() {
    const Tree tree;
    const QString assets = tree.root + "/assets/";
    QCOMPARE(*tree.disk.files.resolved(assets + "twice"),
             QFileInfo(assets + "a.png").canonicalFilePath());
    QCOMPARE(*tree.disk.files.resolved(assets + "new"), assets + "new");
    QVERIFY(!tree.disk.files.resolved(assets + "dangling"));
    // As text it would be another file's path.
    QVERIFY(writeFile(assets + "caf\ufffd", "x"));
    const QByteArray raw = QFile::encodeName(assets) + "caf\xe9";
    QCOMPARE(::rename(QFile::encodeName(assets + "a.png").constData(), raw.constData()), 0);
    QCOMPARE(::symlink("caf\xe9", QFile::encodeName(assets + "raw").constData()), 0);
    QVERIFY(!tree.disk.files.resolved(assets + "raw"));
    QVERIFY(tree.disk.files.open(assets + "raw", tree.root));
    QCOMPARE(::unlink(raw.constData()), 0);  // the toolkit couldn't
  }

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

QTEST_APPLESS_MAIN(TestFileStore)
#include "tst_filestore.moc"
