#include "document/BrandDocument.h"
#include "document/DistinctIDs.h"

#include <QPointer>

namespace tarnloft {

void BrandDocument::snapshotVersion(const std::optional<QString>& label) {
  if (invalidated_) return;
  const VersionEnvelope envelope{services_.clock(), label, brand_};
  services_.disk.run([writer = writer_, envelope] { writer->snapshot(envelope); }, [] {},
                     DiskWork::Patience::none);
}

QList<BrandVersion> BrandDocument::listVersions() const {
  return PackageVersions(services_.files, packageURL_).list();
}

void BrandDocument::listVersions(std::function<void(const QList<BrandVersion>&)> done) const {
  services_.disk.ask([writer = writer_] { return writer->versions().list(); }, std::move(done),
                     DiskWork::Patience::none);
}

void BrandDocument::readVersion(const BrandVersion& version,
                                std::function<void(const Result<Brand>&)> done) const {
  services_.disk.ask([writer = writer_, version] { return writer->versions().read(version.url); },
                     [done = std::move(done)](const Result<VersionEnvelope>& envelope) {
                       done(envelope.map([](const VersionEnvelope& read) { return read.brand; }));
                     });
}

void BrandDocument::restoreVersion(const BrandVersion& version, UndoManager* undoManager) {
  services_.disk.ask(
      [writer = writer_, version] { return writer->versions().read(version.url); },
      [document = QPointer(this),
       undo = undoManager ? undoManager->handle()
                          : std::weak_ptr<UndoManager>()](const Result<VersionEnvelope>& envelope) {
        if (!document || !envelope) return;
        document->mutate(QStringLiteral("Restore Version"), undo.lock().get(),
                         [&](Brand& brand) { brand = withDistinctIDs(envelope->brand); });
      });
}

void BrandDocument::deleteVersion(const BrandVersion& version) {
  services_.disk.run([writer = writer_, version] { writer->versions().remove(version); }, [] {},
                     DiskWork::Patience::moment);
}

void BrandDocument::maybeAutoSnapshot() {
  if (invalidated_) return;
  services_.disk.run([writer = writer_, brand = brand_,
                      moment = services_.clock()] { writer->autoSnapshot(brand, moment); },
                     [] {}, DiskWork::Patience::none);
}

void BrandDocument::sweep() {
  services_.disk.run([writer = writer_] { writer->sweep(); }, [] {}, DiskWork::Patience::none);
}

}  // namespace tarnloft
