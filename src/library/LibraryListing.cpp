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

// Those that the desktop hides are listed too; its own hidden files with such names are none.
QStringList packagesAmong(const FileStore& files, const QString& folder, QStringList names) {
  names.removeIf([&](const QString& name) {
    const bool isHidden = name.startsWith(QLatin1Char('.'));
    return !Package::isPackagePath(name) ||
           (isHidden && !files.isFolder(folder + QLatin1Char('/') + name));
  });
  return names;
}

// The new id is made from the folder's name, so that it is the same at each start and on each
// machine until it is saved.
void tellTwinsApart(LibraryListing::Listing& listing) {
  QSet<QUuid> seen;
  for (BrandSummary& row : listing.rows) {
    const QUuid shared = row.brandID;
    while (seen.contains(row.brandID)) {
      row.brandID = QUuid::createUuidV5(row.brandID, lastPathComponent(row.packageURL));
    }
    seen.insert(row.brandID);
    if (row.brandID != shared) listing.twins.insert(row.packageURL, {shared, row.brandID});
  }
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

LibraryListing::Listing LibraryListing::read(const FileStore& files, const QString& folder) {
  Listing listing{folder, {}, std::nullopt, {}, {}};
  const auto names = files.listAll(folder);
  if (!names) {
    listing.listed = tl::unexpected(names.error());
    return listing;
  }
  if (const auto identity = files.identity(folder)) listing.identity = *identity;
  const QStringList packages = packagesAmong(files, folder, *names);
  std::vector<BrandSummary> rows(size_t(packages.size()));
  inParallel(packages.size(), [&](qsizetype i) {
    rows[size_t(i)] = summaryOf(files, folder + QLatin1Char('/') + packages.at(i));
  });
  listing.rows = {std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end())};
  tellTwinsApart(listing);
  return listing;
}

bool LibraryListing::holds(const BrandSummary& row, const QHash<QString, Twin>& twins,
                           const QUuid& brand) {
  const auto twin = twins.constFind(row.packageURL);
  return row.brandID == brand || (twin != twins.cend() && twin->sharedID == brand);
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
