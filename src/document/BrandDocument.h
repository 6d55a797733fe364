#pragma once

#include "document/AssetFolder.h"
#include "document/PackageReader.h"
#include "document/PackageWriter.h"
#include "document/UndoManager.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace tarnloft {

// The open form of one package: owns the brand in memory and is the only writer of the package's
// `manifest.json`. Every assignment to `brand` tells observers and saves 0.4 s after the last one,
// which takes a running event loop. It flushes nothing by itself: who lets a document go calls
// `saveNow` before, and keeps it while `hasUnsavedChanges`. The disk is waited for elsewhere. Main
// thread only.
class BrandDocument : public QObject {
  Q_OBJECT

 public:
  // Makes a new package in the folder and saves an empty brand of that name in it. An error of a
  // folder's making ends it; what was made by then stays.
  static Result<std::unique_ptr<BrandDocument>> create(const DocumentServices& services,
                                                       const QString& folder, const QString& name);

  // Opens a package, waiting for it; null if its manifest can't be read.
  static std::unique_ptr<BrandDocument> load(const DocumentServices& services,
                                             const QString& packageURL);

  // Of a package that was read or made away from the main thread.
  BrandDocument(const DocumentServices& services, OpenedPackage&& package);

  // The package folder's path, the document's identity. It changes only with the package's name.
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

  // Saves at once: sets `updatedAt`, of which nobody is told, then replaces `manifest.json`
  // atomically and durably, making the package folder again if it is nowhere. A manifest that
  // another machine has put there since is kept as a version first. A failure is one line in the
  // system log and `saveProblem`, and is tried again every few seconds.
  void saveNow();
  void saveIfNeeded();
  // True from an edit until it is on disk.
  bool hasUnsavedChanges() const { return revision_ != savedRevision_; }
  // Why the last save failed, or has not come to an end yet; empty if neither.
  const QString& saveProblem() const { return saveProblem_; }

  // Renames the package to a name made from the brand's, once all is saved; `done` gets the new
  // path, or why it stays where it is.
  void renamePackage(const QString& folder, std::function<void(const Result<QString>&)> done);
  // The package was found at another path.
  void follow(const QString& packageURL);

  // The brand gets that id with its next save.
  void adoptID(const QUuid& id);

  // Nothing is written until `resumeSaving`, for a package that may be about to go.
  void holdSaving();
  void resumeSaving();

  // Ends all writing, for a package that has gone or is about to. `brand` can still be assigned.
  void invalidate();
  bool isInvalidated() const { return invalidated_; }

  // For reading the package's files from any thread.
  PackageReader files() const { return {services_.files, packageURL_}; }
  // Opens a file of the package's `assets`; refuses names that lead out of the package.
  Result<std::unique_ptr<FileReader>> openAsset(const AssetRef& asset) const;
  // The path of such a file, whether or not it is there; refuses the same names.
  Result<QString> assetPath(const AssetRef& asset) const;

  // --- Edits. What names a section or an item that isn't there does nothing.

  // The undoable edit: assigns what `change` makes of the brand and registers its restoring under
  // that name. A change that changes nothing does nothing.
  void mutate(const QString& actionName, UndoManager* undoManager,
              const std::function<void(Brand&)>& change);

  // Change a section, or an item wherever it stands, in place; not undoable.
  void editSection(const QUuid& section, const std::function<void(Section&)>& change);
  void updateItem(const QUuid& item, const std::function<void(Item&)>& change);
  void removeSection(const QUuid& section);
  void removeItem(const QUuid& item);

  // Appends the item to the section.
  void addItem(const Item& item, const QUuid& section);
  // Appends them all in one assignment.
  void addItems(const QList<Item>& items, const QUuid& section);
  // Moves the item in front of another of the target section, or to its end. Assigns twice.
  void moveItem(const QUuid& item, const QUuid& toSection, const std::optional<QUuid>& before);
  // Moves the section in front of another, or to the end. Assigns twice.
  void moveSection(const QUuid& section, const std::optional<QUuid>& before);

  // Makes `assets` if needed and opens it, for bringing files in from another thread.
  void openAssetFolder(std::function<void(const Result<AssetFolder>&)> done);
  // Copies a file into `assets` under a new name, waiting for it; the caller makes the item.
  Result<AssetRef> importAsset(const QString& source);
  // Writes bytes into `assets` under a new name with that extension.
  Result<AssetRef> importImageData(const QByteArray& data, const QString& suggestedName,
                                   const QString& extension);

  // Registers the taking back of an edit that was assigned already, from the brand before it. What
  // comes to the brand until then stays (`reapplied`).
  void registerRestore(const Brand& brand, UndoManager& undoManager, const QString& actionName);

  // --- Versions. All are silent about failure.

  // Keeps the brand as it is in memory. Of synced copies the 30 newest stay, and of the others.
  void snapshotVersion(const std::optional<QString>& label);
  // Newest first, waiting for the disk. A file that doesn't read is left alone and left out.
  QList<BrandVersion> listVersions() const;
  // The same without waiting, behind what was asked for before.
  void listVersions(std::function<void(const QList<BrandVersion>&)> done) const;
  // The brand that a version holds.
  void readVersion(const BrandVersion& version,
                   std::function<void(const Result<Brand>&)> done) const;
  // One undo step, "Restore Version".
  void restoreVersion(const BrandVersion& version, UndoManager* undoManager);
  void deleteVersion(const BrandVersion& version);
  // "Initial" if there is no version, "Daily" if the newest is a day old.
  void maybeAutoSnapshot();
  // Removes what a killed program left in the package a day ago or longer.
  void sweep();

 signals:
  void brandChanged();
  void packageURLChanged();
  void saveProblemChanged();
  // Of all changes so far, or the last try failed.
  void saveEnded();
  // The package had gone and was made again, without the files that its items name.
  void packageRemade();

 private:
  void scheduleSave();
  void stageAndSave();
  void finishSave(const SaveReport& report);
  void logFailure(const QString& reason);
  void setSaveProblem(const QString& problem);
  void setPackageURL(const QString& packageURL);

  const DocumentServices services_;
  const std::shared_ptr<PackageWriter> writer_;  // shared with what its disk does just now
  QString packageURL_;
  Brand brand_;
  quint64 revision_ = 0;       // counts the changes
  quint64 savedRevision_ = 0;  // the last one that is on disk
  QTimer saveWorkItem_;        // the pending save
  QTimer retry_;               // of a save that failed
  QTimer patience_;            // with one that is on its way
  int savesUnderWay_ = 0;
  QString saveProblem_;
  bool isFailureLogged_ = false;  // since the last change
  bool invalidated_ = false;
  bool isHeld_ = false;
  Brand::ItemPlace updated_;  // of the last item that was changed, which the next keystroke is in
};

}  // namespace tarnloft
