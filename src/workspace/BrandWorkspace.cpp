#include "workspace/BrandWorkspace.h"

#include "assets/ItemDrag.h"
#include "controls/sheets/NameSheet.h"
#include "document/Package.h"
#include "sheets/emblems/EmblemPicker.h"
#include "sheets/versions/VersionHistorySheet.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

BrandWorkspace::BrandWorkspace(BrandDocument& document, const WindowParts& window,
                               const WorkspaceServices& services, QObject* parent)
    : QObject(parent),
      document_(&document),
      window_(window),
      services_(services),
      commands_(document, window, services),
      search_(services.library),
      selected_(document, window, services),
      sections_(*this) {
  connect(&document, &BrandDocument::brandChanged, this, &BrandWorkspace::refreshSoon);
  connect(&document, &BrandDocument::packageURLChanged, this, &BrandWorkspace::placeChanged);
  connect(&search_, &PageSearch::changed, this, &BrandWorkspace::refresh);
  const auto& preferences = services_.library.preferences();
  connect(&preferences, &LibraryPreferences::tileSizeChanged, this,
          &BrandWorkspace::metricsChanged);
  connect(&preferences, &LibraryPreferences::assetDisplayModeChanged, this,
          &BrandWorkspace::metricsChanged);
  refresh();
}

BrandWorkspace::~BrandWorkspace() = default;

void BrandWorkspace::refreshSoon() {
  if (std::exchange(isRefreshDue_, true)) return;
  QMetaObject::invokeMethod(this, &BrandWorkspace::refresh, Qt::QueuedConnection);
}

void BrandWorkspace::refresh() {
  isRefreshDue_ = false;
  if (!document_) return;
  const Brand brand = document_->brand();
  const QString filter = search_.filter();
  sections_.setSections(brand.sections, filter);
  const auto isShown = [](const auto& section) { return section->isShown(); };
  const auto& models = sections_.models();
  const bool isNothingFound =
      !filter.trimmed().isEmpty() && std::none_of(models.begin(), models.end(), isShown);
  if (std::exchange(isNothingFound_, isNothingFound) != isNothingFound) emit foundChanged();
  if (std::exchange(name_, brand.name) != brand.name) emit nameChanged();
}

double BrandWorkspace::tileHeight() const {
  return tarnloft::tileHeight(services_.library.preferences().tileSize());
}

bool BrandWorkspace::isExpanded() const {
  return services_.library.preferences().assetDisplayMode() == AssetDisplayMode::expanded;
}

void BrandWorkspace::setExpanded(bool expanded) {
  services_.library.preferences().setAssetDisplayMode(expanded ? AssetDisplayMode::expanded
                                                               : AssetDisplayMode::compact);
}

int BrandWorkspace::tileSize() const { return int(services_.library.preferences().tileSize()); }

void BrandWorkspace::setTileSize(int size) {
  services_.library.preferences().setTileSize(TileSize(size));
}

FlowMetrics BrandWorkspace::flowMetrics() const {
  return {gridMinWidth(), gridMaxWidth(), tileHeight(), isExpanded()};
}

void BrandWorkspace::rename(const QString& name) {
  const QString trimmed = name.trimmed();
  if (!document_ || trimmed.isEmpty() || trimmed == document_->brand().name) return;
  // It may be shown a moment longer than it is open.
  if (services_.library.openDocument() == document_) services_.library.renameSelectedBrand(trimmed);
}

void BrandWorkspace::showVersions() {
  if (!document_) return;
  const auto toast = [&toasts = window_.toasts](const QString& text) { toasts.show(text); };
  window_.sheets.show(std::make_unique<VersionHistorySheet>(
      *document_, VersionHistorySheet::Actions{window_.undoManager, window_.sheets, toast}));
}

void BrandWorkspace::askNewSection() {
  const auto add = [document = document_](const QString& name) {
    if (!document) return;
    document->edit([&](Brand& brand) { brand.sections.append(Section::create(name)); });
  };
  NameSheet* const sheet = window_.sheets.show(std::make_unique<NameSheet>(
      NameSheet::Words{.title = QStringLiteral("New Section")}, QString(), add));
  if (document_) connect(document_, &QObject::destroyed, sheet, &SheetModel::finished);
}

EmblemLook BrandWorkspace::lookOf(const std::optional<Emblem>& emblem,
                                  const QString& defaultSymbol) const {
  if (!document_) return {};
  return emblemLook(emblem, {defaultSymbol, document_->packageURL(), {}, {}});
}

QString BrandWorkspace::assetPath(const AssetRef& asset) const {
  return document_ ? Package::assetPath(document_->packageURL(), asset).value_or(QString())
                   : QString();
}

void BrandWorkspace::pickColor(const QUuid& section) {
  services_.library.sampleColor([workspace = QPointer(this), section](const QString& hex) {
    if (workspace) workspace->addPicked(hex, section);
  });
}

void BrandWorkspace::addPicked(const QString& hex, const QUuid& section) {
  if (!document_) return;
  document_->mutate(QStringLiteral("Pick Color"), window_.undoManager, [&](Brand& brand) {
    const qsizetype index = indexOf(brand.sections, section);
    if (index < 0) return;
    brand.sections[index].items.append(
        Item::create(ColorPayload{{hex, std::nullopt, std::nullopt}}));
  });
  collectColorsIn(section);
  showEyedropperTip();
}

void BrandWorkspace::collectColorsIn(const QUuid& section) {
  services_.library.setActiveColorSectionID(section);
}

// Once for ever.
void BrandWorkspace::showEyedropperTip() {
  const QString shownKey = QStringLiteral("didShowEyedropperTip");
  if (services_.preferences.number(shownKey).value_or(0) != 0) return;
  services_.preferences.setNumber(shownKey, 1);
  window_.toasts.show(
      QStringLiteral("Tip: press ⌃⌘P to keep sampling — colors land in this section"));
}

void BrandWorkspace::editEmblem(const QUuid& section, const EmblemWords& words) {
  if (!document_) return;
  window_.sheets.show(std::make_unique<EmblemPicker>(
      EmblemSubject(*document_, section), words,
      EmblemPicker::Services{services_.dialogs, services_.imports, services_.thumbnails}));
}

void BrandWorkspace::moveSection(const QUuid& section, int step) {
  if (!document_) return;
  const qsizetype from = indexOf(document_->brand().sections, section), to = from + step;
  if (from < 0 || to < 0 || to >= document_->brand().sections.size()) return;
  document_->edit([&](Brand& brand) { brand.sections.swapItemsAt(from, to); });
}

void BrandWorkspace::importChosen(const QStringList& mimeTypes, DropImport::MediaKind kind,
                                  const QUuid& section) {
  const QPointer<BrandWorkspace> self(this);  // the brand may go while the dialog is open
  const QStringList paths = services_.dialogs.openFiles(mimeTypes);
  if (self && document_)
    DropImport::importFiles(services_.imports, paths, kind, section, *document_);
}

void BrandWorkspace::importChosenFonts(const QUuid& section) {
  const QPointer<BrandWorkspace> self(this);
  const QStringList paths = services_.dialogs.openFiles({QStringLiteral("font/*")});
  if (self && document_) DropImport::importFontFiles(services_.imports, paths, section, *document_);
}

bool BrandWorkspace::offers(const QMimeData& data, const QString& type) const {
  return services_.drops.offers(data, type);
}

bool BrandWorkspace::drop(const QMimeData& data, const QUuid& section) {
  if (!document_) return false;
  return DropImport::handle(services_.imports, services_.drops.things(data), section, *document_);
}

bool BrandWorkspace::dropBefore(const QMimeData& data, const QUuid& section, const QUuid& before) {
  return ItemDrag::loadUUID(services_.drops.things(data), ItemDrag::type,
                            [workspace = QPointer(this), section, before](const QUuid& item) {
                              if (!workspace || !workspace->document_) return;
                              workspace->document_->moveItem(item, section, before);
                            });
}

}  // namespace tarnloft
