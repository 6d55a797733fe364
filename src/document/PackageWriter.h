#pragma once

#include "document/DocumentServices.h"
#include "document/PackageVersions.h"

#include <QMutex>

#include <atomic>

namespace tarnloft {

class PackageWriter;

// A package that was read or made, before a document has it.
struct OpenedPackage {
  std::shared_ptr<PackageWriter> writer;
  QString packageURL;
  Brand brand;
  Result<void> saved;  // a new package may be there while its manifest couldn't be written
};

// What a save came to.
struct SaveReport {
  enum class Place { same, moved, remade };

  Result<void> written;
  quint64 revision = 0;       // of the brand that was tried last
  Place place = Place::same;  // remade: the package had gone with its files
  QString packageURL;         // where the package stands by now
};

// A package as its one open document writes it: knows the manifest as it last read or wrote it, and
// keeps what others have put there since before it replaces that. docs/saving.md tells the steps.
// All but `stage` and `close` wait for the disk and belong to its thread.
class PackageWriter {
 public:
  // Reads a package; writes nothing.
  static Result<OpenedPackage> open(const DocumentServices& services, const QString& packageURL);
  // Makes a package with an empty brand of that name.
  static Result<OpenedPackage> create(const DocumentServices& services, const QString& folder,
                                      const QString& name);

  // Writes the brand into a package that no document has open.
  static Result<void> writeClosed(const DocumentServices& services, const QString& packageURL,
                                  const Brand& brand);
  // The same with what `change` makes of the package's brand.
  static Result<void> editClosed(const DocumentServices& services, const QString& packageURL,
                                 const std::function<void(Brand&)>& change);

  // Puts the brand up for the next save. Main thread.
  void stage(const Brand& brand, quint64 revision);
  // No later save or snapshot writes anything, for a package that goes. Any thread.
  void close() { isClosed_ = true; }

  // Writes what was staged last; nothing if that was saved by an earlier call.
  SaveReport saveStaged();
  // True while what was staged last isn't on disk.
  bool hasFailed() const { return !lastReport_.written; }

  // Renames the package. Only when all that was staged is on disk.
  Result<void> moveTo(const QString& packageURL);
  // The package was found there.
  void follow(const QString& packageURL) { packageURL_ = packageURL; }

  // Removes what a killed program left in the package a day ago or longer.
  void sweep();
  void snapshot(const VersionEnvelope& envelope);
  // Labelled "Initial" if there is no version, "Daily" if the newest is a day old.
  void autoSnapshot(const Brand& brand, Timestamp moment);
  PackageVersions versions() const { return {services_.files, packageURL_}; }
  const QString& packageURL() const { return packageURL_; }

 private:
  struct Staged {
    Brand brand;
    quint64 revision;
  };
  // The manifest as it was last read or written.
  struct Known {
    std::optional<FileIdentity> identity;  // none for a package that had no manifest
    Brand brand;
    bool isOfNewerProgram = false;  // it holds what we would lose
  };

  PackageWriter(const DocumentServices& services, QString packageURL, Known known);

  std::optional<Staged> takeStaged();
  Result<void> write(const Brand& brand);
  Result<void> writeAt(Timestamp moment, Brand brand);
  Result<void> findPackage(const QUuid& brand);
  Result<void> keepPresent();
  void keepLeftBehind();
  Result<void> keep(const QString& manifest, const FileIdentity& identity);
  Result<void> replaceManifest(const QByteArray& json, const Brand& brand);
  Result<void> settleDisplaced(const QString& displaced);

  const DocumentServices services_;
  QString packageURL_;
  Known known_;
  SaveReport lastReport_;
  QMutex mutex_;
  std::optional<Staged> staged_;  // under the mutex
  std::atomic<bool> isClosed_ = false;
};

}  // namespace tarnloft
