#include "library/LibraryStore.h"

#include "document/Package.h"
#include "library/LibraryFolder.h"
#include "library/PickedColor.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

namespace {

using namespace std::chrono_literals;

DocumentServices withPlaces(DocumentServices services,
                            const std::shared_ptr<PackagePlaces>& places) {
  services.findPackage = [places](const QUuid& brand, const QString& lost) {
    return places->placeOf(brand, lost);
  };
  return services;
}

QString quoted(const QString& path) { return QStringLiteral("“") + path + QStringLiteral("”"); }

}  // namespace

LibraryStore::LibraryStore(const LibraryServices& services)
    : services_(services),
      places_(std::make_shared<PackagePlaces>(services.document.files)),
      documentServices_(withPlaces(services.document, places_)),
      preferences_(services.preferences),
      opening_(services.document.files, services.document.disk, services.openingFile,
               services.plain),
      search_(std::make_shared<GlobalSearch>(services.document.files)),
      libraryURL_(defaultLibraryURL(services)) {
  connect(&preferences_, &LibraryPreferences::appearanceModeChanged, this,
          &LibraryStore::applyAppearance);
  connect(&unsaved_, &UnsavedDocuments::changed, this, &LibraryStore::unsavedChanged);
  patience_.setSingleShot(true);
  patience_.setInterval(1500ms);
  connect(&patience_, &QTimer::timeout, this, [this] { setSilent(true); });
  lookAgain_.setSingleShot(true);
  lookAgain_.setInterval(3s);
  connect(&lookAgain_, &QTimer::timeout, this, &LibraryStore::scan);
  applyAppearance();
  openLibrary();
}

LibraryStore::~LibraryStore() = default;

QString LibraryStore::defaultLibraryURL(const LibraryServices& services) {
  const auto chosen = LibraryPreferences(services.preferences).libraryPath();
  return chosen.value_or(services.applicationSupport + QStringLiteral("/Tarn Loft/Library"));
}

// Looked at beside the disk's thread: a disk that doesn't answer keeps nothing from being saved.
void LibraryStore::setLibraryURL(const QString& path) {
  wantedLibrary_ = path;
  services_.copies.ask(
      [&files = services_.document.files, path] { return LibraryFolder::check(files, path); },
      [store = QPointer(this), path](const Result<void>& usable) {
        if (!store || store->wantedLibrary_ != path) return;  // another was chosen meanwhile
        if (usable) return store->moveTo(path);
        emit store->libraryRefused(usable.error().message);
      });
}

void LibraryStore::moveTo(const QString& folder) {
  select(std::nullopt);
  libraryURL_ = folder;
  preferences_.setLibraryPath(folder);
  brands_.clear();
  isOpening_ = true;
  emit brandsChanged();
  emit libraryURLChanged();
  openLibrary();
  onDisk([] { return true; }, [this](bool) { tellStranded(); });  // behind the saves
}

// The rows of the old library don't tell of them any more.
void LibraryStore::tellStranded() {
  for (const BrandDocument* const document : documents()) {
    const QString folder = Package::folderOf(document->packageURL());
    if (folder == libraryURL_ || document->saveProblem().isEmpty()) continue;
    tell(QStringLiteral("Changes to “%1” aren't saved").arg(document->brand().name),
         QStringLiteral("They can't be written to %1: %2. They are kept and tried again until you "
                        "quit. To save a copy of the brand, choose that folder again.")
             .arg(quoted(folder), document->saveProblem()));
  }
}

// Reads the first brand too: it is what a start shows.
void LibraryStore::openLibrary() {
  onDisk(
      [services = documentServices_, folder = libraryURL_, order = preferences_.brandOrder(),
       mark = opening_.marking()] {
        FileStore& files = services.files;
        (void)files.makeFolder(folder);
        LibraryListing::renameLegacyPackages(files, folder);
        OpenedLibrary opened{LibraryListing::read(files, folder), std::nullopt};
        const auto rows = LibraryListing::sorted(opened.listing.rows, order);
        if (rows.isEmpty() || !mark(rows.first().packageURL)) return opened;
        if (auto first = PackageWriter::open(services, rows.first().packageURL)) {
          opened.first = std::move(*first);
        }
        return opened;
      },
      [this](OpenedLibrary&& opened) { libraryOpened(std::move(opened)); });
}

void LibraryStore::libraryOpened(OpenedLibrary&& opened) {
  if (opened.listing.folder != libraryURL_) return;  // another was chosen meanwhile
  services_.document.disk.run(
      [&files = services_.document.files, folder = libraryURL_] {
        files.sweepTemporaries(folder, 24h);  // copies of packages that were killed
      },
      [] {}, DiskWork::Patience::none);
  applyListing(opened.listing);
  const bool isFirstSuspect = !brands_.isEmpty() && opening_.isSuspect(brands_.first().packageURL);
  if (!selection_ && isFirstSuspect) opening_.ask(brands_.first().packageURL);
  emit endedOpeningChanged();
  if (selection_ || isFirstSuspect) return;
  if (brands_.isEmpty() || !opened.first ||
      opened.first->packageURL != brands_.first().packageURL) {
    return selectFirst();
  }
  selection_ = opened.first->packageURL;
  opening_.began(*selection_);
  emit selectionChanged();
  setOpenDocument(makeDocument(std::move(*opened.first)));
}

void LibraryStore::scan() {
  lookAgain_.stop();
  change(
      services_.document.disk, [] { return true; }, [](bool) {});
}

void LibraryStore::applyListing(const LibraryListing::Listing& listing) {
  if (listing.folder != libraryURL_) return;
  if (hasVanished(listing)) {
    setLibraryProblem(quoted(libraryURL_) + QStringLiteral(" isn't there just now."));
    return lookAgain_.start();
  }
  isOpening_ = false;
  if (listing.listed) {
    setLibraryProblem({});
  } else {
    setLibraryProblem(quoted(libraryURL_) + QStringLiteral(" can't be read: ") +
                      listing.listed.error().message);
    lookAgain_.start();
  }
  const auto before = brands_;
  const auto twinsBefore = std::exchange(twins_, listing.twins);
  const QList<QUuid>& order = preferences_.brandOrder();
  brands_ = LibraryListing::sorted(listing.rows, order);
  if (const QList<QUuid> missing = LibraryListing::missingIn(order, brands_); !missing.isEmpty()) {
    preferences_.setBrandOrder(order + missing);
  }
  followDocuments(before, twinsBefore);
  if (listing.identity) places_->see(libraryURL_, *listing.identity, brands_);
  for (BrandDocument* const document : documents()) adoptOwnID(*document);
  emit brandsChanged();
}

// A disk that has gone leaves no folder, or a bare one in its place.
bool LibraryStore::hasVanished(const LibraryListing::Listing& listing) const {
  if (brands_.isEmpty()) return false;
  if (!listing.listed) return true;
  return !places_->checkFolder() && listing.rows.isEmpty();
}

QString LibraryStore::libraryProblem() const {
  return isSilent_ ? quoted(libraryURL_) + QStringLiteral(" doesn't answer.") : libraryProblem_;
}

void LibraryStore::setSilent(bool isSilent) {
  patience_.stop();
  if (std::exchange(isSilent_, isSilent) != isSilent) emit libraryProblemChanged();
}

void LibraryStore::setLibraryProblem(const QString& problem) {
  if (std::exchange(libraryProblem_, problem) != problem) emit libraryProblemChanged();
}

// Another machine may have renamed a package whose document is open.
void LibraryStore::followDocuments(const QList<BrandSummary>& before,
                                   const QHash<QString, LibraryListing::Twin>& twinsBefore) {
  const auto isListed = [](const QList<BrandSummary>& rows, const QString& packageURL) {
    return std::ranges::find(rows, packageURL, &BrandSummary::packageURL) != rows.end();
  };
  for (BrandDocument* const document : documents()) {
    if (isListed(brands_, document->packageURL())) continue;
    const auto twin = twinsBefore.constFind(document->packageURL());
    const QUuid own = document->brand().id;
    const QUuid shared = twin == twinsBefore.cend() ? own : twin->sharedID;  // until it is saved
    for (const BrandSummary& row : std::as_const(brands_)) {
      if (isListed(before, row.packageURL)) continue;
      const bool isItsPackage =
          LibraryListing::holds(row, twins_, own) || LibraryListing::holds(row, twins_, shared);
      if (!isItsPackage) continue;
      document->follow(row.packageURL);
      break;
    }
  }
}

// As a scan would find it.
void LibraryStore::refreshRow(const BrandDocument& document) {
  const auto row = std::ranges::find(brands_, document.packageURL(), &BrandSummary::packageURL);
  if (row == brands_.end() || document.hasUnsavedChanges()) return;
  const Brand& brand = document.brand();
  const BrandSummary now{row->packageURL, brand.name,          brand.emblem,
                         brand.accentHex, brand.accentHexDark, row->brandID};
  if (*row == now) return;
  *row = now;
  emit brandsChanged();
}

void LibraryStore::adoptOwnID(BrandDocument& document) const {
  const auto twin = twins_.constFind(document.packageURL());
  if (twin != twins_.cend() && document.brand().id == twin->sharedID) {
    document.adoptID(twin->ownID);
  }
}

void LibraryStore::moveBrand(const QUuid& id, const std::optional<QUuid>& before) {
  if (before == id) return;
  const auto indexOf = [this](const QUuid& brandID) {
    const auto found = std::find_if(brands_.cbegin(), brands_.cend(),
                                    [&](const auto& row) { return row.brandID == brandID; });
    return found == brands_.cend() ? qsizetype(-1) : found - brands_.cbegin();
  };
  const qsizetype from = indexOf(id);
  if (from < 0) return;
  const BrandSummary row = brands_.takeAt(from);
  const qsizetype target = before ? indexOf(*before) : -1;
  brands_.insert(target < 0 ? brands_.size() : target, row);
  preferences_.setBrandOrder(LibraryListing::missingIn({}, brands_));
  emit brandsChanged();
}

double LibraryStore::gridMinWidth() const {
  if (preferences_.assetDisplayMode() == AssetDisplayMode::expanded) return 250;
  switch (preferences_.tileSize()) {
    case TileSize::small: return 104;
    case TileSize::medium: return 132;
    case TileSize::large: return 176;
  }
  Q_UNREACHABLE();
}

double LibraryStore::gridMaxWidth() const {
  if (preferences_.assetDisplayMode() == AssetDisplayMode::expanded) return 340;
  switch (preferences_.tileSize()) {
    case TileSize::small: return 132;
    case TileSize::medium: return 180;
    case TileSize::large: return 240;
  }
  Q_UNREACHABLE();
}

QString LibraryStore::effectiveAccentHex(ColorUtil::Appearance appearance) const {
  using Hex = std::optional<QString>;
  const Hex accent = openDocument_ ? openDocument_->brand().accentHex : std::nullopt;
  const Hex accentDark = openDocument_ ? openDocument_->brand().accentHexDark : std::nullopt;
  return ColorUtil::effectiveAccent(accent, accentDark, preferences_.defaultAccentHex(),
                                    preferences_.defaultAccentHexDark(), appearance);
}

void LibraryStore::applyAppearance() {
  switch (preferences_.appearanceMode()) {
    case AppearanceMode::system: return services_.appearance.setOverride(AppearanceOverride::none);
    case AppearanceMode::light: return services_.appearance.setOverride(AppearanceOverride::light);
    case AppearanceMode::dark: return services_.appearance.setOverride(AppearanceOverride::dark);
  }
}

void LibraryStore::setNewBrandRequested(bool requested) {
  newBrandRequested_ = requested;
  emit newBrandRequestedChanged();
}

void LibraryStore::setScrollToSection(const std::optional<QUuid>& section) {
  scrollToSection_ = section;
  emit scrollToSectionChanged();
}

QList<SearchHit> LibraryStore::searchAllBrands(const QString& query) {
  const Brand* open = openDocument_ ? &openDocument_->brand() : nullptr;
  return search_->hits(brands_, selection_.value_or(QString()), open, query).toList();
}

void LibraryStore::searchAllBrands(const QString& query, std::function<void(SearchHits)> done) {
  const quint64 number = search_->begin();
  const auto open = openDocument_ ? std::optional(openDocument_->brand()) : std::nullopt;
  services_.searches.ask(
      [search = search_, number, rows = brands_, selected = selection_.value_or(QString()), open,
       query] {
        if (!search->isNewest(number)) return SearchHits();
        return search->hits(rows, selected, open ? &*open : nullptr, query);
      },
      [search = search_, number, done = std::move(done)](SearchHits hits) {
        if (search->isNewest(number)) done(std::move(hits));
      },
      DiskWork::Patience::none);
}

void LibraryStore::reveal(const SearchHit& hit) {
  if (selection_ != hit.brandURL) select(hit.brandURL);
  QMetaObject::invokeMethod(
      this, [this, section = hit.sectionID] { setScrollToSection(section); }, Qt::QueuedConnection);
}

void LibraryStore::setActiveColorSectionID(const std::optional<QUuid>& section) {
  activeColorSectionID_ = section;
}

void LibraryStore::sampleColor(std::function<void(const QString& hex)> picked) {
  colorSampler_ = services_.makeColorSampler();
  colorSampler_->show(
      [store = QPointer(this), picked = std::move(picked)](std::optional<SampledColor> color) {
        if (!store) return;
        // The sampler is still on the stack; it goes when this returns to the event loop's turn.
        const std::shared_ptr<ColorSampler> ended = std::move(store->colorSampler_);
        QMetaObject::invokeMethod(
            store, [ended] {}, Qt::QueuedConnection);
        if (color) picked(ColorUtil::hex({color->red, color->green, color->blue}));
      });
}

void LibraryStore::pickColorFromScreen() {
  if (!openDocument_) return services_.beep.sound();
  sampleColor([this](const QString& hex) {
    if (openDocument_) addPickedColor(hex);
  });
}

void LibraryStore::addPickedColor(const QString& hex) {
  QUuid target;
  openDocument_->mutate(QStringLiteral("Pick Color"), hostUndoManager_, [&](Brand& brand) {
    target = PickedColor::add(brand, hex, activeColorSectionID_);
  });
  activeColorSectionID_ = target;
}

}  // namespace tarnloft
