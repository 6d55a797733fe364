#pragma once

#include "document/BrandDocument.h"
#include "document/Package.h"
#include "testing/FaultyStore.h"
#include "testing/TestServices.h"

namespace tarnloft {

// A new brand on the real disk, which fails when a test says so.
struct TestDocument {
  TestServices disk;
  FaultyStore store;
  std::unique_ptr<BrandDocument> document = *BrandDocument::create(
      {store, disk.log, [this] { return disk.now; }}, disk.folder.path(), "Acme");

  QString assetPath(const QString& filename) const {
    return Package::assetsPath(document->packageURL()) + '/' + filename;
  }
};

// "S:abc T:d"
inline QString shapeOf(const Brand& brand, const QString& between = QString()) {
  QStringList sections;
  for (const Section& section : brand.sections) {
    QStringList names;
    for (const Item& item : section.items) names << item.displayName();
    sections << section.name + ':' + names.join(between);
  }
  return sections.join(' ');
}

}  // namespace tarnloft
