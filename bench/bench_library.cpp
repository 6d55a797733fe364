// A library of 1,000 packages of 300 items: listing it and searching it, beside reading the same
// files and ripgrep.
#include "Grep.h"
#include "Measure.h"
#include "Ratio.h"
#include "document/Package.h"
#include "library/GlobalSearch.h"
#include "library/LibraryListing.h"
#include "model/Json.h"
#include "testing/RandomBrand.h"
#include "testing/TestServices.h"

#include <QElapsedTimer>

#include <simdjson.h>
#include <vector>

using namespace tarnloft;

namespace {

constexpr int packages = 1'000, sections = 10, itemsEach = 30;

double seconds(const std::function<void()>& work) {
  QElapsedTimer clock;
  clock.start();
  work();
  return double(clock.nsecsElapsed()) / 1e9;
}

QStringList makeLibrary(const TestServices& disk, qint64& bytes) {
  QStringList manifests;
  for (int i = 0; i < packages; ++i) {
    const QString package = disk.path(QStringLiteral("%1.tarnloft").arg(i));
    const QByteArray json = *encode(RandomBrand(quint32(i)).brand(sections, itemsEach));
    if (!writeFile(Package::manifestPath(package), json)) std::exit(1);
    manifests << Package::manifestPath(package);
    bytes += json.size();
  }
  return manifests;
}

void readAndParse(const QStringList& manifests) {
  simdjson::dom::parser parser;
  for (const QString& path : manifests) {
    QByteArray json = contentOf(path);
    json.reserve(json.size() + jsonPadding);
    if (parser.parse(json.constData(), size_t(json.size()), false).error()) std::exit(1);
  }
}

}  // namespace

int main() {
  TestServices disk;
  qint64 bytes = 0;
  const QStringList manifests = makeLibrary(disk, bytes);
  const QString query = QStringLiteral("mark 997");
  QList<BrandSummary> rows;
  std::vector<double> scans, reads, firsts, laters, greps;
  qsizetype memory = 0, found = 0;
  for (int round = 0; round < 5; ++round) {
    reads.push_back(seconds([&] { readAndParse(manifests); }));
    scans.push_back(seconds([&] {
      rows = LibraryListing::sorted(LibraryListing::read(disk.files, disk.folder.path()).rows, {});
    }));
    greps.push_back(seconds([&] { grepManifests(disk.folder.path(), query); }));
    GlobalSearch search(disk.files);
    firsts.push_back(seconds([&] { found = search.hits(rows, {}, nullptr, query).size(); }));
    laters.push_back(seconds([&] { (void)search.hits(rows, {}, nullptr, query); }));
    memory = search.memory();
  }
  std::printf("\n%d packages, manifests of %.0f MB, %lld hits\n", packages, double(bytes) / 1e6,
              static_cast<long long>(found));
  std::printf("scan %.0f ms, reading and bare parse %.0f ms\n", median(scans) * 1e3,
              median(reads) * 1e3);
  std::printf("first query %.0f ms, later ones %.1f ms (aim: under 16), ripgrep %.0f ms\n",
              median(firsts) * 1e3, median(laters) * 1e3, median(greps) * 1e3);
  std::printf("kept for searching: %.0f MB (aim: below the manifests)\n", double(memory) / 1e6);
  printRatio("scan / reading the same files and their bare parse", median(scans) / median(reads),
             Aim::atMost, 2.5);
  printRatio("first query / ripgrep", median(firsts) / median(greps), Aim::atMost, 3);
  printRatio("ripgrep / a later query", median(greps) / median(laters), Aim::atLeast, 5);
}
