#pragma once

#include "library/BrandSummary.h"
#include "platform/FileStore.h"

#include <QList>

// Reading a library folder, and the order of its rows. Functions without state.
namespace tarnloft::LibraryListing {

// The packages of the folder, those of the former extension included, in no order. A package whose
// manifest can't be read is listed under its folder's name. Empty if the folder can't be listed.
QList<BrandSummary> read(const FileStore& files, const QString& folder);

// Gives packages of the former extension the present one, unless that name is taken.
void renameLegacyPackages(FileStore& files, const QString& folder);

// Rows by their place in `order`; rows without one follow by name, in the user's language and
// whatever their case. A repeated id in `order` ends the process.
QList<BrandSummary> sorted(QList<BrandSummary> rows, const QList<QUuid>& order);

// The ids of the rows that `order` doesn't hold, each once, in the rows' order.
QList<QUuid> missingIn(const QList<QUuid>& order, const QList<BrandSummary>& rows);

}  // namespace tarnloft::LibraryListing
