#pragma once

#include "library/BrandSummary.h"
#include "platform/FileStore.h"

#include <QHash>
#include <QList>

// Reading a library folder, and the order of its rows. Functions without state.
namespace tarnloft::LibraryListing {

// A package with the id of another one.
struct Twin {
  QUuid sharedID;
  QUuid ownID;  // which it gets when it is first saved
};

// What stands in a library folder.
struct Listing {
  QString folder;
  Result<void> listed;                   // why there are no rows
  std::optional<FileIdentity> identity;  // of the folder
  QList<BrandSummary> rows;              // in no order
  QHash<QString, Twin> twins;            // by their packages
};

// The packages of the folder, those of the former extension included. A package whose manifest
// can't be read is listed under its folder's name. Of packages with one id the first one found
// keeps it; each other gets a new one, always the same, and is told in `twins`. Any thread.
Listing read(const FileStore& files, const QString& folder);

// True if the row's package is of the brand, be it a copy that shares its id.
bool holds(const BrandSummary& row, const QHash<QString, Twin>& twins, const QUuid& brand);

// Gives packages of the former extension the present one, unless that name is taken.
void renameLegacyPackages(FileStore& files, const QString& folder);

// Rows by their place in `order`; rows without one follow by name, in the user's language and
// whatever their case. A repeated id in `order` ends the process.
QList<BrandSummary> sorted(QList<BrandSummary> rows, const QList<QUuid>& order);

// The ids of the rows that `order` doesn't hold, each once, in the rows' order.
QList<QUuid> missingIn(const QList<QUuid>& order, const QList<BrandSummary>& rows);

}  // namespace tarnloft::LibraryListing
