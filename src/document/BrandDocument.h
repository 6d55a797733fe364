#pragma once

#include "document/AssetFolder.h"
#include "document/DocumentServices.h"
#include "document/UndoManager.h"
#include "document/VersionEnvelope.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace tarnloft {

// A row of the version list.
struct BrandVersion {
  QString url;  // the version file's path, the row's identity
  Timestamp createdAt;
  std::optional<QString> label;

  bool operator==(const BrandVersion&) const = default;
};

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
  // the package folder again if it is gone. A manifest that another machine has put there since is
  // kept as a version first. A failure is one line in the system log.
  void saveNow();

  // Ends all writing, for a package that is about to go. `brand` can still be assigned.
  void invalidate();
  bool isInvalidated() const { return invalidated_; }

  // Opens a file of the package's `assets`; refuses names that lead out of the package.
  Result<std::unique_ptr<FileReader>> openAsset(const AssetRef& asset) const;
  // The path of such a file, whether or not it is there; refuses the same names.
  Result<QString> assetPath(const AssetRef& asset) const;

  // --- Edits. What names a section or an item that isn't there does nothing.

  // The undoable edit: assigns what `change` makes of the brand and registers its restoring under
  // that name. A change that changes nothing does nothing.
  void mutate(const QString& actionName, UndoManager* undoManager,
              const std::function<void(Brand&)>& change);

  // Appends the item to the section.
  void addItem(const Item& item, const QUuid& section);
  // Appends them all in one assignment.
  void addItems(const QList<Item>& items, const QUuid& section);
  // Moves the item in front of another of the target section, or to its end. Assigns twice.
  void moveItem(const QUuid& item, const QUuid& toSection, const std::optional<QUuid>& before);
  // Moves the section in front of another, or to the end. Assigns twice.
  void moveSection(const QUuid& section, const std::optional<QUuid>& before);

  // Makes `assets` if needed, for bringing files in from another thread.
  Result<AssetFolder> assetFolder() const;
  // Copies a file into `assets` under a new name; the caller makes the item.
  Result<AssetRef> importAsset(const QString& source);
  // Writes bytes into `assets` under a new name with that extension.
  Result<AssetRef> importImageData(const QByteArray& data, const QString& suggestedName,
                                   const QString& extension);

  // Registers the taking back of an edit that was assigned already, from the brand before it. What
  // comes to the brand until then stays (`reapplied`).
  void registerRestore(const Brand& brand, UndoManager& undoManager, const QString& actionName);

  // --- Versions. All are silent about failure.

  // Keeps the brand as it is in memory; the 30 newest versions stay.
  void snapshotVersion(const std::optional<QString>& label);
  // Newest first. A file that doesn't read is left alone and left out.
  QList<BrandVersion> listVersions() const;
  // One undo step, "Restore Version".
  void restoreVersion(const BrandVersion& version, UndoManager* undoManager);
  void deleteVersion(const BrandVersion& version);
  // "Initial" if there is no version, "Daily" if the newest is a day old.
  void maybeAutoSnapshot();

 signals:
  void brandChanged();

 private:
  BrandDocument(const DocumentServices& services, QString packageURL, Brand brand);

  void scheduleSave();
  Result<void> writeManifest();
  Result<void> keepForeignManifest();
  Result<void> writeVersion(const VersionEnvelope& envelope);
  Result<VersionEnvelope> readVersion(const QString& path) const;
  void pruneVersions(qsizetype max);

  // The manifest as this document last read or wrote it.
  struct Known {
    std::optional<FileIdentity> identity;  // none for a package that had no manifest
    Brand brand;
  };

  const DocumentServices services_;
  const QString packageURL_;
  Brand brand_;
  Known known_;
  QTimer saveWorkItem_;  // the pending save
  bool invalidated_ = false;
  bool suppressSchedule_ = false;  // while `saveNow` itself assigns
};

}  // namespace tarnloft
