#include "document/BrandDocument.h"

#include "document/Package.h"

#include <QPointer>

#include <chrono>
#include <utility>

namespace tarnloft {

using namespace std::chrono_literals;

BrandDocument::BrandDocument(const DocumentServices& services, OpenedPackage&& package)
    : services_(services),
      writer_(std::move(package.writer)),
      packageURL_(std::move(package.packageURL)),
      brand_(std::move(package.brand)) {
  const auto prepare = [this](QTimer& timer, std::chrono::milliseconds interval, auto slot) {
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(interval);
    connect(&timer, &QTimer::timeout, this, slot);
  };
  prepare(saveWorkItem_, 400ms, &BrandDocument::saveNow);
  prepare(retry_, 5s, &BrandDocument::saveNow);
  prepare(patience_, 2s, [this] { setSaveProblem(QStringLiteral("The disk doesn't answer")); });
  if (!package.saved) {
    ++revision_;
    finishSave({package.saved, 0, SaveReport::Place::same, packageURL_});
  }
}

Result<std::unique_ptr<BrandDocument>> BrandDocument::create(const DocumentServices& services,
                                                             const QString& folder,
                                                             const QString& name) {
  return PackageWriter::create(services, folder, name).map([&](OpenedPackage&& package) {
    return std::make_unique<BrandDocument>(services, std::move(package));
  });
}

std::unique_ptr<BrandDocument> BrandDocument::load(const DocumentServices& services,
                                                   const QString& packageURL) {
  auto package = PackageWriter::open(services, packageURL);
  return package ? std::make_unique<BrandDocument>(services, std::move(*package)) : nullptr;
}

void BrandDocument::setBrand(Brand brand) {
  brand_ = std::move(brand);
  ++revision_;
  isFailureLogged_ = false;
  emit brandChanged();
  scheduleSave();
}

void BrandDocument::scheduleSave() {
  if (!invalidated_) saveWorkItem_.start();
}

void BrandDocument::saveIfNeeded() {
  if (hasUnsavedChanges()) saveNow();
}

void BrandDocument::saveNow() {
  if (invalidated_ || isHeld_) return;
  saveWorkItem_.stop();
  retry_.stop();
  brand_.updatedAt = services_.clock();
  stageAndSave();
}

void BrandDocument::stageAndSave() {
  writer_->stage(brand_, revision_);
  if (savesUnderWay_++ == 0) patience_.start();
  services_.disk.ask([writer = writer_] { return writer->saveStaged(); },
                     [document = QPointer(this)](const SaveReport& report) {
                       if (!document) return;
                       --document->savesUnderWay_;
                       document->finishSave(report);
                     },
                     DiskWork::Patience::none);
}

void BrandDocument::finishSave(const SaveReport& report) {
  if (savesUnderWay_ == 0) patience_.stop();
  if (invalidated_) return;
  if (report.place != SaveReport::Place::same) setPackageURL(report.packageURL);
  if (report.written) {
    savedRevision_ = report.revision;
    setSaveProblem({});
  } else if (savesUnderWay_ == 0) {
    const QString& reason = report.written.error().message;
    logFailure(reason);
    setSaveProblem(reason);
    retry_.start();
  }
  if (report.written && report.place == SaveReport::Place::remade) emit packageRemade();
  if (!report.written || !hasUnsavedChanges()) emit saveEnded();
}

// Once, however often the same is tried again.
void BrandDocument::logFailure(const QString& reason) {
  if (std::exchange(isFailureLogged_, true) && reason == saveProblem_) return;
  services_.log.write(QStringLiteral("failed to save ") + Package::manifestPath(packageURL_) +
                      QStringLiteral(": ") + reason);
}

void BrandDocument::setSaveProblem(const QString& problem) {
  if (std::exchange(saveProblem_, problem) != problem) emit saveProblemChanged();
}

void BrandDocument::setPackageURL(const QString& packageURL) {
  if (std::exchange(packageURL_, packageURL) != packageURL) emit packageURLChanged();
}

void BrandDocument::renamePackage(const QString& folder,
                                  std::function<void(const Result<QString>&)> done) {
  const auto rename = [&files = services_.files, writer = writer_, folder,
                       name = brand_.name]() -> Result<QString> {
    if (writer->hasFailed()) {
      return failure(ErrorKind::io, QStringLiteral("Its changes couldn't be saved."));
    }
    QString target = Package::uniquePackageURL(files, folder, name);
    return writer->moveTo(target).map([&] { return std::move(target); });
  };
  services_.disk.ask(
      rename, [document = QPointer(this), done = std::move(done)](const Result<QString>& target) {
        if (document && target) document->setPackageURL(*target);
        done(target);
      });
}

void BrandDocument::follow(const QString& packageURL) {
  services_.disk.run([writer = writer_, packageURL] { writer->follow(packageURL); }, [] {},
                     DiskWork::Patience::none);
  setPackageURL(packageURL);
}

void BrandDocument::adoptID(const QUuid& id) {
  if (brand_.id == id) return;
  brand_.id = id;
  emit brandChanged();
}

void BrandDocument::holdSaving() {
  isHeld_ = true;
  saveWorkItem_.stop();
  retry_.stop();
}

void BrandDocument::resumeSaving() {
  isHeld_ = false;
  saveIfNeeded();
}

void BrandDocument::invalidate() {
  invalidated_ = true;
  writer_->close();
  saveWorkItem_.stop();
  retry_.stop();
}

Result<std::unique_ptr<FileReader>> BrandDocument::openAsset(const AssetRef& asset) const {
  return Package::openAsset(services_.files, packageURL_, asset);
}

Result<QString> BrandDocument::assetPath(const AssetRef& asset) const {
  return Package::assetPath(services_.files, packageURL_, asset);
}

}  // namespace tarnloft
