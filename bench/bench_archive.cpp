// The archive of a package with 500 MB of assets beside another tool's.
#include "LargePackage.h"
#include "Process.h"
#include "Ratio.h"
#include "document/AtomicWrite.h"
#include "platform/desktop/archives/ZipArchiver.h"

using namespace tarnloft;

namespace {

Cost exported(FileStore& files, const QString& package, const QString& archive) {
  QElapsedTimer clock;
  clock.start();
  const auto written = writeAtomically(files, archive, Durability::atomic, [&](FileWriter& file) {
    Progress progress;
    return ZipArchiver().archive(package, file, progress);
  });
  if (!written) std::exit(1);
  return {double(clock.nsecsElapsed()) / 1e9, 0};
}

}  // namespace

int main() {
  TestServices disk;
  const QByteArray package = largePackage(disk, 500);
  const QString ours = disk.path(QStringLiteral("ours.zip"));
  const QByteArray theirs = QFile::encodeName(disk.path(QStringLiteral("theirs.zip")));
  const QByteArray folder = QFile::encodeName(disk.folder.path());
  std::vector<Cost> exports, references;
  for (int round = 0; round < 3; ++round) {
    run({"sync"});
    exports.push_back(exported(disk.files, QFile::decodeName(package), ours));
    run({"sync"});
    references.push_back(
        run({"bsdtar", "--format", "zip", "-cf", theirs, "-C", folder, "Large.tarnloft"}));
  }
  std::printf("\nAn archive of 500 MB: %.1f s and %.1f MB, bsdtar %.1f s and %.1f MB\n",
              medianSeconds(exports), double(QFileInfo(ours).size()) / 1e6,
              medianSeconds(references), double(QFileInfo(QFile::decodeName(theirs)).size()) / 1e6);
  printRatio("archive of a package with 500 MB of assets / bsdtar --format zip",
             medianSeconds(exports) / medianSeconds(references), Aim::atMost, 0.15);
  printRatio("its size / bsdtar --format zip",
             double(QFileInfo(ours).size()) / double(QFileInfo(QFile::decodeName(theirs)).size()),
             Aim::atMost, 1.02);
}
