#include "testing/Cases.h"
#include "testing/InProcess.h"
#include "testing/TestServices.h"

#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tarnloft;
using namespace std::chrono_literals;

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
    link("assets", "/inside");
    link("../p.tarnloft-other", "/outside");
    ::symlink(QFile::encodeName(root + "/assets/a.png").constData(),
              QFile::encodeName(root + "/assets/absolute").constData());
  }
  void link(const char* target, const char* name) const {
    ::symlink(target, QFile::encodeName(root + QLatin1String(name)).constData());
  }
};

constexpr rlim_t limit = 1 << 20;  // bytes of a file

mode_t rightsOf(const QString& path) {
  struct stat info {};
  return ::lstat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 07777 : 0;
}

constexpr int notAllowed = 77;

// Leaves the process without /proc, through which alone a file without a name can be given one.
bool leaveProc(const QString& root) {
  if (::geteuid() != 0 && ::unshare(CLONE_NEWUSER) != 0) return false;
  return ::chroot(QFile::encodeName(root).constData()) == 0 && ::chdir("/") == 0;
}

using Making = std::function<bool(PosixFileStore&, const QString& source, const QString& folder)>;

Result<void> written(FileStore& files, const QString& path, const QByteArray& content) {
  auto file = files.createTemporary(path);
  if (!file) return tl::unexpected(file.error());
  if (auto done = (*file)->write(content); !done) return done;
  return files.replace(**file, path);
}

const QList<QPair<const char*, Making>> makings{
    {"copied", [](auto& files, auto& source,
                  auto& folder) { return files.copyFile(source, folder + "/new").has_value(); }},
    {"copied in",
     [](auto& files, auto& source, auto& folder) {
       Progress progress;
       return (*files.openFolder(folder, folder))->copyIn(source, "new", progress).has_value();
     }},
    {"written in",
     [](auto& files, auto& source, auto& folder) {
       const QByteArray content = contentOf(source);
       return (*files.openFolder(folder, folder))->writeIn(content, "new").has_value();
     }},
    {"written", [](auto& files, auto& source, auto& folder) {
       return written(files, folder + "/new", contentOf(source)).has_value();
     }}};

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
    const auto opensFolder = [&](const QString& name) {
      return tree.disk.files.openFolder(tree.root + name, tree.root).has_value();
    };
    for (const char* good : {"", "/assets", "/inside"}) QVERIFY2(opensFolder(good), good);
    for (const char* bad : {"/outside", "-other", "/..", "/assets/a.png", "/missing"}) {
      QVERIFY2(!opensFolder(bad), bad);
    }
  }

  void tellsWhatIsntThereFromWhatFails() {
    using enum ErrorKind;
    using Kind = std::optional<ErrorKind>;
    const Tree tree;
    const QString pipe = tree.root + "/assets/pipe";
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const Cases<QString, Kind, Kind> cases{
        {"there", "a.png", {}, {}},
        {"missing", "missing", notFound, notFound},
        {"in a missing folder", "missing/file", notFound, notFound},
        {"in a file", "a.png/file", notFound, io},
        {"dangling", "dangling", {}, notFound},
        {"a pipe, which may never answer", "pipe", {}, refused},
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

  void followsLinksForPages() {
    const Tree tree;
    const QString assets = tree.root + "/assets/";
    QCOMPARE(*tree.disk.files.resolved(assets + "twice"),
             QFileInfo(assets + "a.png").canonicalFilePath());
    QCOMPARE(*tree.disk.files.resolved(assets + "new"), assets + "new");
    QVERIFY(!tree.disk.files.resolved(assets + "dangling"));
  }

  // Files that come into being: whole or not at all, whatever happens to the disk and the program.

  void filesAppearWholeOrNotAtAll() {
    for (const auto& [how, making] : makings) {
      for (const bool killed : {false, true}) {  // or the disk is full
        TestServices disk;
        const QString source = disk.path("source"), folder = disk.path("folder");
        QVERIFY(writeFile(source, QByteArray(3 * limit, 'x')) && QDir().mkpath(folder));
        const auto make = [&, &make = making] { return make(disk.files, source, folder); };
        const int status = inProcess([&] {
          const rlimit most{limit, limit}, none{0, 0};
          ::setrlimit(RLIMIT_CORE, &none);
          ::signal(SIGXFSZ, killed ? SIG_DFL : SIG_IGN);
          return ::setrlimit(RLIMIT_FSIZE, &most) == 0 && make();
        });
        QVERIFY2(killed ? WIFSIGNALED(status) : WIFEXITED(status) && WEXITSTATUS(status) == 1, how);
        QCOMPARE(namesIn(folder), QStringList());
        QVERIFY2(make(), how);
        QCOMPARE(namesIn(folder), QStringList("new"));
        QCOMPARE(contentOf(folder + "/new").size(), qsizetype(3 * limit));
      }
    }
  }

  void filesAppearWhereTheyNeedAHiddenName() {
    TestServices disk;
    QVERIFY(writeFile(disk.path("source"), "content"));
    for (const auto& making : makings) {
      QVERIFY(QDir().mkpath(disk.path(making.first)));
      const int status = inProcess([&] {
        const QString folder = QString("/") + making.first;
        if (!leaveProc(disk.folder.path())) ::_exit(notAllowed);
        const bool made = making.second(disk.files, "/source", folder);
        (void)making.second(disk.files, "/source", folder);  // its place is taken by now
        return made && namesIn(folder) == QStringList("new");
      });
      if (WEXITSTATUS(status) == notAllowed) QSKIP("The system lets nobody change the root folder");
      QVERIFY2(WIFEXITED(status) && WEXITSTATUS(status) == 0, making.first);
      QCOMPARE(contentOf(disk.path(making.first) + "/new"), "content");
    }
  }

  void keepsWhatAFileIsExchangedWith() {
    TestServices disk;
    const QString path = disk.path("file");
    const auto exchanged = [&](const QByteArray& content) {
      auto file = disk.files.createTemporary(path);
      return (*file)->write(content).and_then([&] { return disk.files.exchange(**file, path); });
    };
    const auto first = exchanged("first");
    QVERIFY(first && first->displacedPath.isEmpty());
    QCOMPARE(namesIn(disk.folder.path()), QStringList("file"));
    const auto second = exchanged("second");
    QVERIFY(second && QFileInfo(second->displacedPath).fileName().startsWith(".tarnloft-"));
    QCOMPARE(contentOf(path), "second");
    QCOMPARE(contentOf(second->displacedPath), "first");
    QCOMPARE(namesIn(disk.folder.path()).size(), 2);
    QVERIFY(disk.files.moveOver(second->displacedPath, path));
    QCOMPARE(contentOf(path), "first");
    QCOMPARE(namesIn(disk.folder.path()), QStringList("file"));
  }

  void movesOverFilesAndToFreePlacesAlone() {
    TestServices disk;
    const QString file = disk.path("file"), folder = disk.path("folder");
    QVERIFY(writeFile(file, "x") && QDir().mkpath(folder));
    QVERIFY(!disk.files.moveOver(file, folder));
    QVERIFY(!disk.files.moveOver(disk.path("missing"), file));
    QVERIFY(!written(disk.files, folder, "x"));
    const auto temporary = disk.files.createTemporary(disk.path("other"));
    QVERIFY(!disk.files.exchange(**temporary, folder));
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(contentOf(file), "x");
    QVERIFY(QDir().mkpath(disk.path("taken")) &&
            !disk.files.moveFolder(folder, disk.path("taken")));
    QVERIFY(disk.files.moveFolder(folder, disk.path("free")));
    QCOMPARE(namesIn(disk.folder.path()), QStringList({"file", "free", "taken"}));
  }

  void filesTellTheirIdentityInPlace() {
    TestServices disk;
    const QString path = disk.path("file");
    for (const bool exchanges : {false, true, false}) {
      auto file = disk.files.createTemporary(path);
      QVERIFY(file && (*file)->write("content"));
      QTest::qWait(20);  // the clock of files is coarse, and the rename must move their time on
      const FileIdentity before = (*file)->identity();
      QVERIFY(exchanges ? disk.files.exchange(**file, path).has_value()
                        : disk.files.replace(**file, path).has_value());
      QCOMPARE((*file)->identity(), *disk.files.identity(path));
      QVERIFY((*file)->identity() != before);
    }
  }

  void filesCanBeChangedByTheirOwner() {
    TestServices disk;
    const QString source = disk.path("from/file");
    QVERIFY(writeFile(source, "x") && writeFile(disk.path("replaced"), "x"));
    const auto setRights = [](const QString& path, mode_t rights) {
      QCOMPARE(::chmod(QFile::encodeName(path).constData(), rights), 0);
    };
    QFile aged(source);
    QVERIFY(aged.open(QIODevice::ReadWrite));
    const auto lastYear = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    QVERIFY(aged.setFileTime(lastYear, QFile::FileModificationTime));
    aged.close();
    setRights(source, 0440);
    setRights(disk.path("replaced"), 0040);
    setRights(disk.path("from"), 0500);
    QVERIFY(disk.files.copyFile(source, disk.path("copy")));
    QVERIFY(disk.files.copyFolder(disk.path("from"), disk.path("tree")));
    const auto tree = disk.files.openFolder(disk.path("tree"), disk.path("tree"));
    Progress progress;
    QVERIFY((*tree)->copyIn(source, "in", progress));
    QVERIFY(written(disk.files, disk.path("replaced"), "new"));
    for (const char* name : {"copy", "tree/file", "tree/in", "replaced"}) {
      QCOMPARE(rightsOf(disk.path(name)), mode_t(0640));
      const bool isCopy = qstrcmp(name, "replaced") != 0;
      QCOMPARE(QFileInfo(disk.path(name)).lastModified() == lastYear, isCopy);
    }
    QCOMPARE(rightsOf(disk.path("tree")), mode_t(0700));
    setRights(disk.path("from"), 0700);
  }

  void leftoversAreSweptWhenTheyAreOld() {
    TestServices disk;
    QVERIFY(writeFile(disk.path(".tarnloft-1y2p0ij32e8e7"), "x"));
    QVERIFY(writeFile(disk.path(".tarnloft-0/deep/file"), "x"));
    const QStringList others{".tarnloft-", ".tarnloft-1y2p0ij32e8e77", ".tarnloft-x.json"};
    for (const QString& name : others) QVERIFY(writeFile(disk.path(name), "x"));
    QVERIFY(writeFile(disk.path("elsewhere/.tarnloft-1"), "x"));
    QVERIFY(QFile::link("elsewhere", disk.path(".tarnloft-2")));
    const QStringList all = namesIn(disk.folder.path());
    // A file whose content is old may have come just now: the time of its record counts too.
    const timespec longAgo[] = {{1, 0}, {1, 0}};
    QCOMPARE(
        ::utimensat(AT_FDCWD, QFile::encodeName(disk.path(".tarnloft-0")).constData(), longAgo, 0),
        0);
    disk.files.sweepTemporaries(disk.folder.path(), 1h);
    QCOMPARE(namesIn(disk.folder.path()), all);
    QTest::qWait(20);
    disk.files.sweepTemporaries(disk.folder.path(), 0h);
    QStringList left = others + QStringList{"elsewhere", ".tarnloft-2"};
    left.sort();
    QStringList found = namesIn(disk.folder.path());
    found.sort();
    QCOMPARE(found, left);
    QVERIFY(disk.files.exists(disk.path("elsewhere/.tarnloft-1")));
  }
};

QTEST_APPLESS_MAIN(TestFileStore)
#include "tst_filestore.moc"
