#include "platform/desktop/files/GioTrash.h"
#include "testing/Cases.h"
#include "testing/InProcess.h"
#include "testing/TestServices.h"

#include <QProcess>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace tarnloft;

namespace {

constexpr uid_t ordinaryUser = 65534;

// The user's folders, with a package, an empty trash, and a working directory that stays empty.
struct Home {
  const QTemporaryDir folder;
  const QString package = folder.filePath("library/Acmé 北.tarnloft");

  Home() {
    for (const char* name : {"share/Trash/info", "share/Trash/files", "work"}) {
      QDir().mkpath(folder.filePath(name));
    }
    writeFile(package + "/manifest.json", "x");
    qputenv("HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.filePath("share")));
  }
  ~Home() {
    for (const char* name : {"share/Trash/info", "share/Trash/files", "library"}) {
      ::chmod(QFile::encodeName(folder.filePath(name)).constData(), 0700);
    }
  }
  Q_DISABLE_COPY_MOVE(Home)

  QStringList entries(const char* name) const { return namesIn(folder.filePath(name)); }
};

// In a process of its own: the library looks at the user's folders once. As an ordinary user, from
// whom rights can be taken.
bool throwsAway(const Home& home, const QString& path, bool isDiskFull = false) {
  if (::geteuid() == 0) {
    QProcess::execute("chown", {"-R", QString::number(ordinaryUser), home.folder.path()});
  }
  return succeedsInProcess([&] {
    (void)::chdir(QFile::encodeName(home.folder.filePath("work")).constData());
    if (::geteuid() == 0 && ::setuid(ordinaryUser) != 0) return false;
    const rlimit nothing{0, 0};
    ::signal(SIGXFSZ, SIG_IGN);
    if (isDiskFull) ::setrlimit(RLIMIT_FSIZE, &nothing);
    return GioTrash().moveToTrash(path).has_value();
  });
}

}  // namespace

class TestTrash : public QObject {
  Q_OBJECT

 private slots:
  void anotherProgramCanRestore() {
    const Home home;
    QVERIFY(throwsAway(home, home.package));
    QVERIFY(!QFile::exists(home.package));
    QCOMPARE(home.entries("share/Trash/files"), QStringList("Acmé 北.tarnloft"));
    QCOMPARE(home.entries("work"), QStringList());
    QProcess restore;
    restore.start("trash-restore", {home.package});
    restore.write("0\n");
    restore.closeWriteChannel();
    QVERIFY(restore.waitForFinished());
    QCOMPARE(contentOf(home.package + "/manifest.json"), "x");
    QCOMPARE(home.entries("share/Trash/files"), QStringList());
  }

  void aFileSystemMayHaveNone() {
    const Home home;
    const QTemporaryDir other("/dev/shm/tst_trash-XXXXXX");
    struct stat here {
    }, there{};
    ::stat(QFile::encodeName(home.folder.path()).constData(), &here);
    if (::stat(QFile::encodeName(other.path()).constData(), &there) != 0) QSKIP("No shared memory");
    if (here.st_dev == there.st_dev) QSKIP("There is one file system only");
    QVERIFY(writeFile(other.filePath("a.tarnloft/manifest.json"), "x"));
    QFile::setPermissions(other.path(), QFile::Permissions(0x7777));
    QVERIFY(!throwsAway(home, other.filePath("a.tarnloft")));
    QCOMPARE(contentOf(other.filePath("a.tarnloft/manifest.json")), "x");
    QVERIFY(!QFile::exists(QString("/dev/shm/.Trash-%1").arg(ordinaryUser)));
    QCOMPARE(home.entries("work"), QStringList());
  }

  // Faults that the system lays in the way, each by a change of the user's folders.
  void whatItCantTakeStaysWhole() {
    using Change = std::function<void(const Home& home)>;
    const auto forbid = [](const char* name) {
      return [name](const Home& home) {
        ::chmod(QFile::encodeName(home.folder.filePath(name)).constData(), 0500);
      };
    };
    const auto block = [](const char* name) {
      return [name](const Home& home) {
        const QString folder = home.folder.filePath(name);
        QVERIFY(QDir(folder).removeRecursively() && writeFile(folder, "x"));
      };
    };
    const Cases<bool, Change> cases{
        {"the trash is a file", false, block("share/Trash")},
        {"the records' folder is a file", false, block("share/Trash/info")},
        {"no right to the files' folder", false, forbid("share/Trash/files")},
        {"no right to the package's folder", false, forbid("library")},
        {"a full disk", true, [](const Home&) {}}};
    cases.check([](bool isDiskFull, const Change& change) {
      const Home home;
      QVERIFY(!throwsAway(home, home.folder.filePath("missing")) && !throwsAway(home, QString()));
      change(home);
      QVERIFY(!throwsAway(home, home.package, isDiskFull));
      QCOMPARE(contentOf(home.package + "/manifest.json"), "x");
      for (const char* name : {"share/Trash/info", "share/Trash/files", "work"}) {
        QCOMPARE(home.entries(name), QStringList());
      }
    });
  }
};

QTEST_APPLESS_MAIN(TestTrash)
#include "tst_trash.moc"
