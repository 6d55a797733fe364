#pragma once

#include "document/DocumentServices.h"
#include "model/Brand.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace tarnloft {

// The open form of one package: owns the brand in memory and is the only writer of the package's
// `manifest.json`. Every assignment to `brand` tells observers and saves 0.4 s after the last one,
// which takes a running event loop; a change younger than that is lost when the document goes.
// Main thread only.
class BrandDocument : public QObject {
  Q_OBJECT

 public:
  // Makes a new package in the folder and saves an empty brand of that name in it. An error of a
  // folder's making ends it; what was made by then stays.
  static Result<std::unique_ptr<BrandDocument>> create(const DocumentServices& services,
                                                       const QString& folder, const QString& name);

  // Opens a package; null if its manifest can't be read. Writes nothing.
  static std::unique_ptr<BrandDocument> load(const DocumentServices& services,
                                             const QString& packageURL);

  // The package folder's path. It is the document's identity and never changes.
  const QString& packageURL() const { return packageURL_; }

  const Brand& brand() const { return brand_; }
  void setBrand(Brand brand);

  // Assigns what `change(Brand&)` makes of the present brand.
  template <class Change>
  void edit(Change&& change) {
    Brand changed = brand_;
    change(changed);
    setBrand(std::move(changed));
  }

  // Saves at once: sets `updatedAt`, then replaces `manifest.json` atomically and durably, making
  // the package folder again if it is gone. A failure is one line in the system log.
  void saveNow();

  // Ends all writing, for a package that is about to go. `brand` can still be assigned.
  void invalidate();
  bool isInvalidated() const { return invalidated_; }

  // Opens a file of the package's `assets`; refuses names that lead out of the package.
  Result<std::unique_ptr<FileReader>> openAsset(const AssetRef& asset) const;

 signals:
  void brandChanged();

 private:
  BrandDocument(const DocumentServices& services, QString packageURL, Brand brand);

  void scheduleSave();
  Result<void> writeManifest();

  const DocumentServices services_;
  const QString packageURL_;
  Brand brand_;
  QTimer saveWorkItem_;  // the pending save
  bool invalidated_ = false;
  bool suppressSchedule_ = false;  // while `saveNow` itself assigns
};

}  // namespace tarnloft
