// A file of 1 GB dragged out of a package, on a file system that shares blocks and on one that
// doesn't, beside `cp`; and how long a drop of many files keeps the event loop from turning.
#include "Measure.h"
#include "Ratio.h"
#include "assets/DragFileExport.h"
#include "assets/DropImport.h"
#include "testing/FakeDrops.h"
#include "testing/TestServices.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>

#include <algorithm>
#include <functional>
#include <sys/mount.h>
#include <vector>

using namespace tarnloft;

namespace {

constexpr int rounds = 10;

double seconds(const std::function<void()>& work) {
  QElapsedTimer clock;
  clock.start();
  work();
  return double(clock.nsecsElapsed()) / 1e9;
}

double best(const std::vector<double>& values) {
  return *std::min_element(values.begin(), values.end());
}

void run(const QString& program, const QStringList& arguments) {
  if (QProcess::execute(program, arguments) == 0) return;
  std::fprintf(stderr, "%s failed\n", qPrintable(program));
  std::exit(1);
}

void writeRandom(const QString& path, int megabytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) std::exit(1);
  QByteArray megabyte(1 << 20, Qt::Uninitialized);
  for (int i = 0; i < megabytes; ++i) {
    QRandomGenerator::global()->fillRange(reinterpret_cast<quint32*>(megabyte.data()),
                                          megabyte.size() / qsizetype(sizeof(quint32)));
    file.write(megabyte);
  }
}

// Both copy into an empty place beside the source, in turn first, and neither pays for the other's
// pages on their way to the medium. The best round of each counts: what else the machine does only
// adds to a copy. `cp` carries the start of a process, told beside it.
void benchDrag(const QString& folder, const char* where) {
  const QString asset = folder + QStringLiteral("/Acme.tarnloft/assets/stored.mp4");
  const QString copy = folder + QStringLiteral("/copy.mp4");
  writeRandom(asset, 1024);
  qputenv("TMPDIR", QFile::encodeName(folder));
  PosixFileStore files;
  std::vector<double> drags, copies, starts;
  const auto drag = [&] {
    QString url;
    run(QStringLiteral("sync"), {});
    drags.push_back(
        seconds([&] { url = DragFileExport::tempURL(files, asset, QStringLiteral("Reel.mp4")); }));
    if (url == asset || !QFile::remove(url)) std::exit(1);
  };
  const auto cp = [&] {
    run(QStringLiteral("sync"), {});
    copies.push_back(seconds([&] {
      run(QStringLiteral("cp"), {QStringLiteral("--reflink=auto"), asset, copy});
    }));
    QFile::remove(copy);
  };
  for (int round = 0; round < rounds; ++round) {
    round % 2 == 0 ? drag() : cp();
    round % 2 == 0 ? cp() : drag();
    starts.push_back(seconds([&] { run(QStringLiteral("true"), {}); }));
  }
  qunsetenv("TMPDIR");
  std::printf("\n1 GB %s: drag copy %.1f ms, cp %.1f ms, the start of any process %.1f ms\n", where,
              best(drags) * 1e3, best(copies) * 1e3, best(starts) * 1e3);
  printRatio(qPrintable(QStringLiteral("drag copy of 1 GB, %1 / cp --reflink=auto")
                            .arg(QString::fromUtf8(where))),
             best(drags) / best(copies), Aim::atMost, 1.1);
}

// Whether a command succeeds; what it prints is dropped.
bool succeeds(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
         process.exitCode() == 0;
}

bool sharesBlocks(const QString& folder) {
  const QString probe = folder + QStringLiteral("/probe");
  writeRandom(probe, 1);
  return succeeds(QStringLiteral("cp"),
                  {QStringLiteral("--reflink=always"), probe, folder + QStringLiteral("/probe2")});
}

// A file system that shares blocks, in a file: it takes the rights to mount one.
class SharingFileSystem {
 public:
  SharingFileSystem() {
    QFile image(image_);
    if (!image.open(QIODevice::WriteOnly) || !image.resize(qint64(4) << 30)) return;
    QDir().mkpath(path_);
    isMounted_ = succeeds(QStringLiteral("mkfs.btrfs"), {QStringLiteral("-q"), image_}) &&
                 succeeds(QStringLiteral("mount"),
                          {QStringLiteral("-o"), QStringLiteral("loop"), image_, path_});
  }
  ~SharingFileSystem() {
    if (isMounted_) ::umount2(QFile::encodeName(path_).constData(), MNT_DETACH);
  }
  Q_DISABLE_COPY_MOVE(SharingFileSystem)

  bool isReady() const { return isMounted_ && sharesBlocks(path_); }
  const QString& path() const { return path_; }

 private:
  TestServices disk_;
  QString image_ = disk_.path(QStringLiteral("image"));
  QString path_ = disk_.path(QStringLiteral("mount"));
  bool isMounted_ = false;
};

void benchDrags() {
  const SharingFileSystem sharing;
  if (sharing.isReady()) {
    benchDrag(sharing.path(), "sharing blocks");
  } else {
    std::printf("\nSkipped: sharing blocks takes mkfs.btrfs and the right to mount.\n");
  }
  const TestServices disk;
  if (sharesBlocks(disk.folder.path())) {
    std::printf("\nSkipped: not sharing blocks, which the temporary folder does.\n");
  } else {
    benchDrag(disk.folder.path(), "not sharing blocks");
  }
}

// The longest time between two turns of the event loop from the drop until all items have landed.
double longestTurn(const DroppedThings& things) {
  TestServices disk;
  FakeTypes types;
  FakeFonts fonts;
  QThreadPool workers;
  const auto document =
      *BrandDocument::create(disk.services(), disk.folder.path(), QStringLiteral("Acme"));
  const Section& section = document->brand().sections.first();
  QElapsedTimer clock;
  clock.start();
  DropImport::handle({types, fonts, workers, [](const auto&...) {}}, things, section.id, *document);
  qint64 longest = clock.nsecsElapsed();
  while (document->brand().sections.first().items.size() < things.size()) {
    clock.restart();
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    longest = std::max(longest, clock.nsecsElapsed());
    QThread::usleep(100);
  }
  return double(longest) / 1e9;
}

void benchDrop() {
  TestServices disk;
  DroppedThings many, large;
  for (int i = 0; i < 2000; ++i) {
    const QString path = disk.path(QStringLiteral("from/%1.png").arg(i));
    if (!writeFile(path, QByteArray(20'000, 'x'))) std::exit(1);
    many << FakeThing::file(path);
  }
  writeRandom(disk.path(QStringLiteral("large.mp4")), 1024);
  large << FakeThing::file(disk.path(QStringLiteral("large.mp4")));
  std::vector<double> ofMany, ofLarge;
  for (int round = 0; round < 5; ++round) {
    ofMany.push_back(longestTurn(many));
    ofLarge.push_back(longestTurn(large));
  }
  constexpr double frame = 1.0 / 60;
  std::printf("\nLongest turn of the event loop: drop of 2,000 files %.1f ms, of 1 GB %.1f ms\n",
              median(ofMany) * 1e3, median(ofLarge) * 1e3);
  printRatio("longest turn in a drop of 2,000 files / a frame", median(ofMany) / frame, Aim::atMost,
             1);
  printRatio("longest turn in a drop of 1 GB / a frame", median(ofLarge) / frame, Aim::atMost, 1);
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchDrags();
  benchDrop();
}
