#include "library/LibraryListing.h"

#include "document/Package.h"
#include "model/FileName.h"
#include "model/Json.h"
#include "model/Uuid.h"

#include <QCollator>
#include <QHash>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <limits>

namespace tarnloft {
namespace {

constexpr QLatin1String presentExtension("tarnloft");
constexpr QLatin1String legacyExtension("yewstack");

BrandSummary summaryOf(const FileStore& files, const QString& packageURL) {
  const auto brand =
      Package::readJson(files, Package::manifestPath(packageURL), packageURL)
          .and_then([](const Package::ReadFile& file) { return decode<Brand>(file.bytes); });
  if (brand) {
    return {packageURL,       brand->name,          brand->emblem,
            brand->accentHex, brand->accentHexDark, brand->id};
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
  QList<BrandSummary> rows;
  for (const QString& name : files.list(folder).value_or(QStringList())) {
    if (!Package::isPackagePath(name)) continue;
    rows << summaryOf(files, folder + QLatin1Char('/') + name);
  }
  return rows;
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
