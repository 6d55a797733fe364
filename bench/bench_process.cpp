// Whole runs of the program beside references: the page of a package with 1 GB of assets, and the
// start for a small page.
#include "Ratio.h"
#include "document/Package.h"
#include "model/Json.h"
#include "testing/TestServices.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

#include <algorithm>
#include <fcntl.h>
#include <functional>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

using namespace tarnloft;

extern char** environ;

namespace {

struct Cost {
  double seconds = 0;
  double peakMegabytes = 0;
};

// Runs a program to its end; stops the benchmark if it fails.
Cost run(const std::vector<QByteArray>& command) {
  std::vector<char*> arguments;
  for (const QByteArray& word : command) arguments.push_back(const_cast<char*>(word.constData()));
  arguments.push_back(nullptr);
  QElapsedTimer clock;
  clock.start();
  pid_t child = 0;
  int status = 1;
  rusage usage{};
  if (::posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
      ::wait4(child, &status, 0, &usage) < 0 || status != 0) {
    std::fprintf(stderr, "%s failed\n", arguments[0]);
    std::exit(1);
  }
  return {double(clock.nsecsElapsed()) / 1e9, double(usage.ru_maxrss) / 1024};
}

template <class Value>
double medianOf(std::vector<Cost> costs, Value&& value) {
  std::vector<double> values;
  for (const Cost& cost : costs) values.push_back(value(cost));
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

double medianSeconds(const std::vector<Cost>& costs) {
  return medianOf(costs, [](const Cost& cost) { return cost.seconds; });
}

// Eight pictures of 128 MB of random bytes.
QByteArray largePackage(const TestServices& disk) {
  constexpr int pictures = 8, megabytesEach = 128;
  const QString package = disk.path(QStringLiteral("Large.tarnloft"));
  Brand brand = Brand::create(QStringLiteral("Large"));
  QByteArray megabyte(1 << 20, Qt::Uninitialized);
  QDir().mkpath(Package::assetsPath(package));
  for (int i = 0; i < pictures; ++i) {
    const AssetRef asset{QStringLiteral("%1.png").arg(i), QStringLiteral("Poster.png")};
    QFile file(Package::assetsPath(package) + QLatin1Char('/') + asset.filename);
    if (!file.open(QIODevice::WriteOnly)) std::exit(1);
    for (int m = 0; m < megabytesEach; ++m) {
      QRandomGenerator::global()->fillRange(reinterpret_cast<quint32*>(megabyte.data()),
                                            megabyte.size() / qsizetype(sizeof(quint32)));
      file.write(megabyte);
    }
    brand.sections.first().items.append(Item::create(ImagePayload{asset, std::nullopt}));
  }
  if (!writeFile(Package::manifestPath(package), *encode(brand))) std::exit(1);
  return QFile::encodeName(package);
}

void benchLargePage() {
  TestServices disk;
  const QByteArray package = largePackage(disk);
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
  const double peak = medianOf(exports, [](const Cost& cost) { return cost.peakMegabytes; });
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
