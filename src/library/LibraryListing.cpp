#include "library/LibraryListing.h"

#include "document/Package.h"
#include "library/InParallel.h"
#include "model/FileName.h"
#include "model/RecordView.h"
#include "model/Uuid.h"

#include <QCollator>
#include <QHash>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <limits>
#include <vector>

namespace tarnloft {
namespace {

constexpr QLatin1String presentExtension("tarnloft");
constexpr QLatin1String legacyExtension("yewstack");

BrandSummary summaryOf(const FileStore& files, const QString& packageURL) {
  const auto file = Package::readJson(files, Package::manifestPath(packageURL), packageURL);
  const auto brand = file.and_then(
      [](const Package::ReadFile& read) { return RecordView<Brand>::parse(read.bytes); });
  if (brand) {
    return {packageURL,
            valueOf<&Brand::name>(*brand),
            valueOf<&Brand::emblem>(*brand),
            valueOf<&Brand::accentHex>(*brand),
            valueOf<&Brand::accentHexDark>(*brand),
            valueOf<&Brand::id>(*brand)};
  }
  const QString name = withoutPathExtension(lastPathComponent(packageURL));
  return {packageURL, name, {}, {}, {}, QUuid::createUuid()};
}

// A bare C locale has no order of letters beyond their codes; English has a sensible one.
QCollator nameCollator() {
  const bool bare = QLocale().collation().language() == QLocale::C;
  QCollator collator(bare ? QLocale(QLocale::English) : QLocale().collation());
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  return collator;
}

QHash<QUuid, qsizetype> positionsOf(const QList<QUuid>& order) {
  QHash<QUuid, qsizetype> positions;
  for (const QUuid& id : order) {
    if (positions.contains(id)) {
      qFatal("Duplicate values for key: '%s'", qPrintable(canonicalString(id)));
    }
    positions.insert(id, positions.size());
  }
  return positions;
}

}  // namespace

QList<BrandSummary> LibraryListing::read(const FileStore& files, const QString& folder) {
  QStringList packages = files.list(folder).value_or(QStringList());
  packages.removeIf([](const QString& name) { return !Package::isPackagePath(name); });
  std::vector<BrandSummary> rows(size_t(packages.size()));
  inParallel(packages.size(), [&](qsizetype i) {
    rows[size_t(i)] = summaryOf(files, folder + QLatin1Char('/') + packages.at(i));
  });
  return {std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end())};
}

void LibraryListing::renameLegacyPackages(FileStore& files, const QString& folder) {
  for (const QString& name : files.list(folder).value_or(QStringList())) {
    if (pathExtension(name) != legacyExtension) continue;
    const QString path = folder + QLatin1Char('/') + name;
    (void)files.moveFolder(path, withoutPathExtension(path) + QLatin1Char('.') + presentExtension);
  }
}

QList<BrandSummary> LibraryListing::sorted(QList<BrandSummary> rows, const QList<QUuid>& order) {
  const auto positions = positionsOf(order);
  const QCollator collator = nameCollator();
  const auto positionOf = [&](const BrandSummary& row) {
    return positions.value(row.brandID, std::numeric_limits<qsizetype>::max());
  };
  std::stable_sort(rows.begin(), rows.end(), [&](const BrandSummary& a, const BrandSummary& b) {
    const qsizetype x = positionOf(a), y = positionOf(b);
    return x != y ? x < y : collator.compare(a.name, b.name) < 0;
  });
  return rows;
}

QList<QUuid> LibraryListing::missingIn(const QList<QUuid>& order, const QList<BrandSummary>& rows) {
  QSet<QUuid> known(order.begin(), order.end());
  QList<QUuid> missing;
  for (const BrandSummary& row : rows) {
    if (known.contains(row.brandID)) continue;
    known.insert(row.brandID);
    missing << row.brandID;
  }
  return missing;
}

}  // namespace tarnloft
