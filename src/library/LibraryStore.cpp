#include "library/LibraryStore.h"

#include "library/LibraryListing.h"
#include "library/PickedColor.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

LibraryStore::LibraryStore(const LibraryServices& services)
    : services_(services),
      preferences_(services.preferences),
      search_(services.document.files),
      libraryURL_(defaultLibraryURL(services)) {
  connect(&preferences_, &LibraryPreferences::appearanceModeChanged, this,
          &LibraryStore::applyAppearance);
  applyAppearance();
  openLibrary();
}

LibraryStore::~LibraryStore() = default;

QString LibraryStore::defaultLibraryURL(const LibraryServices& services) {
  const auto chosen = LibraryPreferences(services.preferences).libraryPath();
  return chosen.value_or(services.applicationSupport + QStringLiteral("/Tarn Loft/Library"));
}

void LibraryStore::setLibraryURL(const QString& path) {
  libraryURL_ = path;
  preferences_.setLibraryPath(path);
  emit libraryURLChanged();
  openLibrary();
}

void LibraryStore::openLibrary() {
  FileStore& files = services_.document.files;
  (void)files.makeFolder(libraryURL_);
  LibraryListing::renameLegacyPackages(files, libraryURL_);
  scan();
  selectFirst();
}

void LibraryStore::scan() {
  const QList<QUuid>& order = preferences_.brandOrder();
  brands_ =
      LibraryListing::sorted(LibraryListing::read(services_.document.files, libraryURL_), order);
  if (const QList<QUuid> missing = LibraryListing::missingIn(order, brands_); !missing.isEmpty()) {
    preferences_.setBrandOrder(order + missing);
  }
  emit brandsChanged();
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

void LibraryStore::selectFirst() {
  select(brands_.isEmpty() ? std::nullopt : std::optional(brands_.first().packageURL));
}

void LibraryStore::select(const std::optional<QString>& packageURL) {
  selection_ = packageURL;
  emit selectionChanged();
  loadSelection();
}

void LibraryStore::loadSelection() {
  if (!selection_) return setOpenDocument(nullptr);
  if (openDocument_ && openDocument_->packageURL() == *selection_) return;
  setOpenDocument(BrandDocument::load(services_.document, *selection_));
}

void LibraryStore::setOpenDocument(std::unique_ptr<BrandDocument> document) {
  if (document) {
    connect(document.get(), &BrandDocument::brandChanged, this, &LibraryStore::brandChanged);
  }
  // The old document lives until all have been told of the new one.
  const auto old = std::exchange(openDocument_, std::move(document));
  emit openDocumentChanged();
}

void LibraryStore::addItems(const QString& packageURL, const QUuid& section,
                            const QList<Item>& items) {
  if (openDocument_ && openDocument_->packageURL() == packageURL) {
    return openDocument_->addItems(items, section);
  }
  const auto closed = BrandDocument::load(services_.document, packageURL);
  if (!closed) return;
  closed->addItems(items, section);
  closed->saveNow();
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
  return search_.hits(brands_, selection_.value_or(QString()), open, query);
}

void LibraryStore::reveal(const SearchHit& hit) {
  if (selection_ != hit.brandURL) select(hit.brandURL);
  QMetaObject::invokeMethod(
      this, [this, section = hit.sectionID] { setScrollToSection(section); }, Qt::QueuedConnection);
}

void LibraryStore::setActiveColorSectionID(const std::optional<QUuid>& section) {
  activeColorSectionID_ = section;
}

void LibraryStore::pickColorFromScreen() {
  if (!openDocument_) return services_.beep.sound();
  colorSampler_ = services_.makeColorSampler();
  colorSampler_->show([store = QPointer(this)](std::optional<SampledColor> color) {
    if (!store) return;
    // The sampler is still on the stack; it goes when this returns to the event loop's turn.
    const std::shared_ptr<ColorSampler> ended = std::move(store->colorSampler_);
    QMetaObject::invokeMethod(
        store, [ended] {}, Qt::QueuedConnection);
    if (!color || !store->openDocument_) return;
    store->addPickedColor(ColorUtil::hex({color->red, color->green, color->blue}));
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
