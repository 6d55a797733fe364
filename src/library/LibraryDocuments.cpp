#include "document/Package.h"
#include "library/LibraryStore.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

void LibraryStore::selectFirst() {
  select(brands_.isEmpty() ? std::nullopt : std::optional(brands_.first().packageURL));
}

void LibraryStore::select(const std::optional<QString>& packageURL) {
  if (selection_ != packageURL) afterLoading_ = nullptr;
  selection_ = packageURL;
  emit selectionChanged();
  loadSelection();
}

void LibraryStore::loadSelection() {
  if (!selection_) return setOpenDocument(nullptr);
  if (openDocument_ && openDocument_->packageURL() == *selection_) return;
  opening_.begin(*selection_);
  if (auto kept = unsaved_.take(*selection_)) return setOpenDocument(std::move(kept));
  load(*selection_);
  if (!isLoading()) return;
  setOpenDocument(nullptr);
  emit isLoadingChanged();
}

void LibraryStore::load(const QString& packageURL) {
  if (loading_.contains(packageURL)) return;
  loading_.insert(packageURL);
  onDisk([services = documentServices_,
          packageURL] { return PackageWriter::open(services, packageURL); },
         [this, packageURL](Result<OpenedPackage>&& package) {
           loaded(packageURL, std::move(package));
         });
}

void LibraryStore::loaded(const QString& packageURL, Result<OpenedPackage>&& package) {
  loading_.remove(packageURL);
  auto document = package ? makeDocument(std::move(*package)) : nullptr;
  landings_.removeIf([&](const Landing& landing) {
    if (landing.brand.packageURL != packageURL) return false;
    if (document) document->addItems(landing.items, landing.section);
    return true;
  });
  if (selection_ == packageURL) {
    setOpenDocument(std::move(document));
    emit isLoadingChanged();
    if (const auto then = std::exchange(afterLoading_, nullptr)) then();
  } else if (document && document->hasUnsavedChanges()) {
    unsaved_.keep(std::move(document));
  }
}

std::unique_ptr<BrandDocument> LibraryStore::makeDocument(OpenedPackage&& package) {
  auto made = std::make_unique<BrandDocument>(documentServices_, std::move(package));
  BrandDocument* const document = made.get();
  connect(document, &BrandDocument::packageURLChanged, this,
          [this, document] { packageMoved(*document); });
  connect(document, &BrandDocument::saveProblemChanged, this, &LibraryStore::unsavedChanged);
  connect(document, &BrandDocument::packageRemade, this, [this, document] {
    tell(QStringLiteral("“%1” had gone from the library").arg(document->brand().name),
         QStringLiteral("What you changed is saved, in a new package. The files of its "
                        "tiles went with the old one, and are missing."));
    scan();
  });
  connect(document, &BrandDocument::saveEnded, this, [this, document] { refreshRow(*document); });
  adoptOwnID(*document);
  document->sweep();
  return made;
}

void LibraryStore::setOpenDocument(std::unique_ptr<BrandDocument> document) {
  if (document) {
    connect(document.get(), &BrandDocument::brandChanged, this, &LibraryStore::brandChanged);
  }
  // The old document lives until all have been told of the new one.
  auto old = std::exchange(openDocument_, std::move(document));
  emit openDocumentChanged();
  if (!old || old->isInvalidated() || !old->hasUnsavedChanges()) return;
  disconnect(old.get(), &BrandDocument::brandChanged, this, &LibraryStore::brandChanged);
  unsaved_.keep(std::move(old));
}

void LibraryStore::followOpenPackage() {
  if (!openDocument_) return;
  onDisk(
      [&files = services_.document.files, folder = libraryURL_,
       package = openDocument_->packageURL()]() -> std::optional<LibraryListing::Listing> {
        if (files.isFolder(package)) return std::nullopt;
        return LibraryListing::read(files, folder);
      },
      [this](const auto& listing) {
        if (listing) applyListing(*listing);
      });
}

void LibraryStore::packageMoved(BrandDocument& document) {
  if (&document == openDocument_.get()) {
    if (selection_) opening_.moved(*selection_, document.packageURL());
    selection_ = document.packageURL();
    emit selectionChanged();
    emit openDocumentChanged();
  }
  const auto row = std::ranges::find(brands_, document.packageURL(), &BrandSummary::packageURL);
  if (row == brands_.cend()) scan();
}

BrandDocument* LibraryStore::documentAt(const QString& packageURL) const {
  const bool isOpen = openDocument_ && openDocument_->packageURL() == packageURL;
  return isOpen ? openDocument_.get() : unsaved_.at(packageURL);
}

std::vector<BrandDocument*> LibraryStore::documents() const {
  auto all = unsaved_.all();
  if (openDocument_) all.push_back(openDocument_.get());
  return all;
}

bool LibraryStore::flush(std::chrono::milliseconds patience) {
  for (BrandDocument* const document : documents()) document->saveIfNeeded();
  if (landings_.isEmpty() && unsavedBrands().isEmpty()) return true;
  (void)services_.document.disk.finish(patience);
  return unsavedBrands().isEmpty();
}

void LibraryStore::retrySaves() {
  for (BrandDocument* const document : documents()) {
    if (!document->saveProblem().isEmpty()) document->saveIfNeeded();
  }
}

QStringList LibraryStore::unsavedBrands() const {
  QStringList names;
  for (const BrandDocument* const document : documents()) {
    if (document->hasUnsavedChanges()) names << document->brand().name;
  }
  return names;
}

QString LibraryStore::saveProblem(const QString& packageURL) const {
  const BrandDocument* const document = documentAt(packageURL);
  return document ? document->saveProblem() : QString();
}

// Under another name it is the package with the brand's id.
QString LibraryStore::placeOf(const BrandPlace& brand) const {
  const auto at = std::ranges::find(brands_, brand.packageURL, &BrandSummary::packageURL);
  if (at != brands_.cend() || documentAt(brand.packageURL)) return brand.packageURL;
  const auto moved = std::ranges::find(brands_, brand.brand, &BrandSummary::brandID);
  return moved == brands_.cend() ? QString() : moved->packageURL;
}

void LibraryStore::addItems(const BrandPlace& brand, const QUuid& section,
                            const QList<Item>& items) {
  const QString packageURL = placeOf(brand);
  if (packageURL.isEmpty()) return;
  if (BrandDocument* const document = documentAt(packageURL)) {
    return document->addItems(items, section);
  }
  landings_ << Landing{{packageURL, brand.brand}, section, items};
  load(packageURL);
}

void LibraryStore::whenSaved(const QString& packageURL,
                             std::function<void(const Result<void>&)> then) {
  const QPointer<BrandDocument> document = documentAt(packageURL);
  if (!document || !document->hasUnsavedChanges()) return then({});
  document->saveNow();
  // The ends of what the disk does come in order, so this one comes behind the save's.
  services_.document.disk.run(
      [] {},
      [store = QPointer(this), document, then = std::move(then)] {
        if (!store) return;
        const bool isSaved = !document || !document->hasUnsavedChanges();
        then(isSaved ? Result<void>()
                     : failure(ErrorKind::io, QStringLiteral("Its changes aren't saved: ") +
                                                  document->saveProblem()));
      },
      DiskWork::Patience::moment);
}

void LibraryStore::whenLoaded(const QString& packageURL, std::function<void()> then) {
  if (selection_ != packageURL) select(packageURL);
  if (!isLoading()) return then();
  afterLoading_ = std::move(then);
}

const BrandSummary* LibraryStore::endedOpening() const {
  const auto row = std::ranges::find(brands_, opening_.ended(), &BrandSummary::packageURL);
  return row == brands_.cend() ? nullptr : &*row;
}

void LibraryStore::answerEndedOpening(EndedOpening answer) {
  const QString packageURL = opening_.ended();
  opening_.answer();
  if (answer == EndedOpening::open) select(packageURL);
}

bool LibraryStore::isPlain() const {
  return openDocument_ && opening_.isPlain(openDocument_->packageURL());
}

void LibraryStore::showWholly() {
  if (!isPlain()) return;
  beginShowing();
  opening_.trust(openDocument_->packageURL());
  emit plainChanged();
}

void LibraryStore::beginShowing() {
  if (openDocument_) opening_.begin(openDocument_->packageURL());
}

void LibraryStore::endShowing(std::chrono::milliseconds patience) {
  if (opening_.end()) (void)services_.document.disk.finish(patience);
}

void LibraryStore::tell(const QString& title, const QString& message) {
  notices_ << Notice{title, message};
  emit noticesChanged();
}

void LibraryStore::dismissNotice() {
  if (notices_.isEmpty()) return;
  notices_.removeFirst();
  emit noticesChanged();
}

void LibraryStore::saveCopy() {
  if (!openDocument_) return;
  const auto folder = services_.dialogs.chooseFolder({}, {});
  if (!folder || !openDocument_) return;
  const auto copyTo =
      [services = services_.document, folder = *folder, brand = openDocument_->brand(),
       packageURL = openDocument_->packageURL()](Progress& progress) -> Result<QString> {
    FileStore& files = services.files;
    QString target = Package::uniquePackageURL(files, folder, brand.name);
    const auto made = files.isFolder(packageURL) ? files.copyFolder(packageURL, target, progress)
                                                 : files.makeFolder(target);
    if (!made) return tl::unexpected(made.error());
    return PackageWriter::writeClosed(services, target, brand).map([&] {
      return std::move(target);
    });
  };
  copy(QStringLiteral("Saving a copy…"), copyTo, [this](const Result<QString>& target) {
    if (target) return services_.viewer.reveal(*target);
    tell(QStringLiteral("The copy couldn't be saved"), target.error().message);
  });
}

}  // namespace tarnloft
