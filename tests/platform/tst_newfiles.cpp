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
       return (*files.openFolder(folder, folder))->copyIn(source, "new").has_value();
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

// Files that come into being: whole or not at all, whatever happens to the disk and the program.
class TestNewFiles : public QObject {
  Q_OBJECT

 private slots:
  void appearWholeOrNotAtAll() {
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

  void appearWhereTheyNeedAHiddenName() {
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

  void keepWhatTheyAreExchangedWith() {
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

  void moveOverFilesAlone() {
    TestServices disk;
    const QString file = disk.path("file"), folder = disk.path("folder");
    QVERIFY(writeFile(file, "x") && QDir().mkpath(folder));
    QVERIFY(!disk.files.moveOver(file, folder));
    QVERIFY(!disk.files.moveOver(disk.path("missing"), file));
    const auto temporary = disk.files.createTemporary(disk.path("other"));
    QVERIFY(!disk.files.exchange(**temporary, folder));
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(contentOf(file), "x");
  }

  void tellTheirIdentityInPlace() {
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

  void canBeChangedByTheirOwner() {
    TestServices disk;
    const QString source = disk.path("from/file");
    QVERIFY(writeFile(source, "x") && writeFile(disk.path("replaced"), "x"));
    const auto setRights = [](const QString& path, mode_t rights) {
      QCOMPARE(::chmod(QFile::encodeName(path).constData(), rights), 0);
    };
    setRights(source, 0440);
    setRights(disk.path("replaced"), 0040);
    setRights(disk.path("from"), 0500);
    QVERIFY(disk.files.copyFile(source, disk.path("copy")));
    QVERIFY(disk.files.copyFolder(disk.path("from"), disk.path("tree")));
    QVERIFY((*disk.files.openFolder(disk.path("tree"), disk.path("tree")))->copyIn(source, "in"));
    QVERIFY(written(disk.files, disk.path("replaced"), "new"));
    for (const char* name : {"copy", "tree/file", "tree/in", "replaced"}) {
      QCOMPARE(rightsOf(disk.path(name)), mode_t(0640));
    }
    QCOMPARE(rightsOf(disk.path("tree")), mode_t(0700));
    setRights(disk.path("from"), 0700);
  }

  void copiesHoldNamesThatAreNoText() {
    TestServices disk;
    const QByteArray root = QFile::encodeName(disk.folder.path());
    QVERIFY(QDir().mkpath(disk.path("from")));
    QCOMPARE(::mkdir((root + "/from/caf\xe9").constData(), 0777), 0);
    QCOMPARE(::symlink("x", (root + "/from/caf\xe9/li\xe9n").constData()), 0);
    QVERIFY(disk.files.copyFolder(disk.path("from"), disk.path("to")));
    QCOMPARE(::access((root + "/to/caf\xe9").constData(), R_OK), 0);
    QCOMPARE(::faccessat(AT_FDCWD, (root + "/to/caf\xe9/li\xe9n").constData(), F_OK,
                         AT_SYMLINK_NOFOLLOW),
             0);
    for (const char* name : {"from", "to"}) {
      QVERIFY(disk.files.removeFolder(disk.path(name)) && !disk.files.exists(disk.path(name)));
    }
  }

  void leftoversAreSweptWhenTheyAreOld() {
    TestServices disk;
    QVERIFY(writeFile(disk.path(".tarnloft-1y2p0ij32e8e7"), "x"));
    QVERIFY(writeFile(disk.path(".tarnloft-0/deep/file"), "x"));
    const QStringList others{".tarnloft-", ".tarnloft-1y2p0ij32e8e77", ".tarnloft-A", "tarnloft-1",
                             ".tarnloft-x.json"};
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

QTEST_APPLESS_MAIN(TestNewFiles)
#include "tst_newfiles.moc"
