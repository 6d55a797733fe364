// Whole runs of the program beside references: the page of a package with 1 GB of assets, and the
// start for a small page.
#include "LargePackage.h"
#include "Process.h"
#include "Ratio.h"

using namespace tarnloft;

namespace {

void benchLargePage() {
  TestServices disk;
  const QByteArray package = largePackage(disk, 1024);
  const QByteArray page = QFile::encodeName(disk.path(QStringLiteral("page.html")));
  const QByteArray copy = QFile::encodeName(disk.path(QStringLiteral("copy.html")));
  std::vector<Cost> exports, copies;
  const auto exportPage = [&] { return run({TARNLOFT_PROGRAM, "--export-page", package, page}); };
  exportPage();  // warms the cache
  for (int round = 0; round < 5; ++round) {
    QFile::remove(QFile::decodeName(page));
    run({"sync"});  // neither pays for the other's pages on their way to the medium
    exports.push_back(exportPage());
    QFile::remove(QFile::decodeName(copy));
    run({"sync"});
    copies.push_back(run({"cp", page, copy}));
  }
  const double peak = medianPeak(exports);
  std::printf("\nA page of %.2f GB: %.2f s, cp %.2f s, peak memory %.1f MB (aim: under 64 MB) %s\n",
              double(QFileInfo(QFile::decodeName(page)).size()) / 1e9, medianSeconds(exports),
              medianSeconds(copies), peak, peak < 64 ? "met" : "MISSED");
  printRatio("export of a page with 1 GB of assets / cp of the finished page",
             medianSeconds(exports) / medianSeconds(copies), Aim::atMost, 2);
}

void benchSmallPage() {
  TestServices disk;
  const QByteArray page = QFile::encodeName(disk.path(QStringLiteral("page.html")));
  std::vector<Cost> exports, starts;
  for (int round = 0; round < 101; ++round) {
    exports.push_back(run({TARNLOFT_PROGRAM, "--export-page", SAMPLE_PACKAGE, page}));
    starts.push_back(run({EMPTY_PROGRAM}));
  }
  std::printf("\nThe sample brand's page: %.1f ms, an empty program %.1f ms\n",
              medianSeconds(exports) * 1e3, medianSeconds(starts) * 1e3);
  printRatio("export of the sample page / an empty program with Qt Core",
             medianSeconds(exports) / medianSeconds(starts), Aim::atMost, 3);
}

}  // namespace

int main() {
  benchSmallPage();
  benchLargePage();
}
