#include "testing/TestLibrary.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cstdio>
#include <cstring>

using namespace tarnloft;

namespace {

constexpr int kills = 100;  // about a thousand saves, snapshots and renames

// The brand of one step, which tells whether it is whole: as many items as its number says.
Brand brandOfStep(Brand brand, int step) {
  brand.accentHex = QString::number(step);
  SharedList<Item> items;
  for (int i = 0; i < step % 200; ++i) {
    items.append(Item::create(TextPayload{QString(50, QChar('a' + i % 26))}));
  }
  brand.sections.first().items = items;
  return brand;
}

int stepOf(const Brand& brand) { return brand.accentHex.value_or("0").toInt(); }

bool isWhole(const Brand& brand) {
  return brand.sections.first().items.size() == stepOf(brand) % 200;
}

int workUntilKilled(const QString& folder) {
  TestLibrary library;
  library.folder = folder;
  library.preferences.setText("libraryPath", folder);
  LibraryStore& store = library.start();
  for (int step = stepOf(store.openDocument()->brand()) + 1;; ++step) {
    store.openDocument()->setBrand(brandOfStep(store.openDocument()->brand(), step));
    store.openDocument()->saveNow();
    std::printf("%d\n", step);
    std::fflush(stdout);
    store.openDocument()->snapshotVersion(std::nullopt);
    if (step % 3 == 0) store.renameSelectedBrand(QString("Brand %1").arg(step));
  }
}

// Runs the worker for a moment; gives the last step that it told of, or -1 if it told of none.
int lastStepBeforeKill(const QString& folder, const QString& temporaryFolder) {
  QProcess worker;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("TMPDIR", temporaryFolder);  // what it leaves there goes with the test
  worker.setProcessEnvironment(environment);
  worker.start(QCoreApplication::applicationFilePath(), {"--work", folder});
  if (!worker.waitForReadyRead(30000)) return -1;
  QTest::qSleep(int(QRandomGenerator::global()->bounded(120)));
  worker.kill();
  worker.waitForFinished();
  const QList<QByteArray> lines = worker.readAllStandardOutput().split('\n');
  return lines.size() < 2 ? -1 : lines.at(lines.size() - 2).toInt();
}

}  // namespace

// A process that saves, snapshots and renames as fast as it can, killed at any moment.
class TestKilled : public QObject {
  Q_OBJECT

 private slots:
  void leavesTheOldOrTheNew() {
    TestLibrary library;
    Brand brand = library.add("Brand");
    brand.accentHex = "0";
    brand.sections = {Section::create("One")};
    library.save("Brand", brand);
    int versions = 0;
    for (int kill = 0; kill < kills; ++kill) {
      const int told = lastStepBeforeKill(library.folder, library.disk.folder.path());
      QVERIFY(told > 0);
      const QStringList packages =
          QDir(library.folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
      QCOMPARE(packages.size(), 1);
      const QString package = library.folder + '/' + packages.first();
      const auto read = decode<Brand>(contentOf(Package::manifestPath(package)));
      QVERIFY(read && isWhole(*read));
      // A save that returned has happened; the one behind it may have.
      QVERIFY(stepOf(*read) == told || stepOf(*read) == told + 1);
      const QDir folder(Package::versionsPath(package));
      for (const QString& name : folder.entryList(QDir::Files)) {
        const auto version = decode<VersionEnvelope>(contentOf(folder.filePath(name)));
        QVERIFY2(version && isWhole(version->brand), qPrintable(name));
        ++versions;
      }
    }
    qInfo("%d steps, %d versions read", stepOf(library.start().openDocument()->brand()), versions);
  }
};

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  if (argc == 3 && std::strcmp(argv[1], "--work") == 0) {
    return workUntilKilled(QFile::decodeName(argv[2]));
  }
  TestKilled test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_killed.moc"
