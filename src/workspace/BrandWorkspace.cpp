#include "workspace/BrandWorkspace.h"

#include "assets/ItemDrag.h"
#include "document/Package.h"
#include "workspace/selection/GroupOperations.h"

#include <algorithm>
#include <utility>

namespace tarnloft {
namespace {

// Position in the brand; -1 if it isn't there.
qsizetype placeOf(const Brand& brand, const QUuid& section) {
  const auto found = std::find_if(brand.sections.begin(), brand.sections.end(),
                                  [&](const Section& one) { return one.id == section; });
  return found == brand.sections.end() ? -1 : found - brand.sections.begin();
}

}  // namespace

BrandWorkspace::BrandWorkspace(BrandDocument& document, TileSelection& selection,
                               ToastCenter& toasts, UndoManager* undoManager,
                               const WorkspaceServices& services, QObject* parent)
    : QObject(parent),
      document_(&document),
      selection_(selection),
      toasts_(toasts),
      undoManager_(undoManager),
      services_(services),
      sections_(*this) {
  connect(&document, &BrandDocument::brandChanged, this, &BrandWorkspace::refreshSoon);
  connect(&selection, &TileSelection::idsChanged, this, &BrandWorkspace::selectionChanged);
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
  sections_.setSections(brand.sections, searchText_);
  if (std::exchange(name_, brand.name) != brand.name) emit nameChanged();
}

void BrandWorkspace::setSearchText(const QString& text) {
  if (searchText_ == text) return;
  searchText_ = text;
  emit searchTextChanged();
  refresh();
}

double BrandWorkspace::tileHeight() const {
  return tarnloft::tileHeight(services_.library.preferences().tileSize());
}

void BrandWorkspace::selectAll() {
  if (document_) GroupOperations(*document_, selection_, undoManager_).selectAllInContext();
}

void BrandWorkspace::deleteSelection() {
  if (!document_) return;
  const auto told = GroupOperations(*document_, selection_, undoManager_).bulkDelete();
  if (told) toasts_.show(*told);
}

void BrandWorkspace::clearSelection() { selection_.clear(); }

void BrandWorkspace::addSection(const QString& name) {
  if (!document_) return;
  document_->edit([&](Brand& brand) { brand.sections.append(Section::create(name)); });
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

void BrandWorkspace::copy(const QString& text, const QString& what) {
  services_.pasteboard.setText(text);
  toasts_.show(QStringLiteral("Copied ") + what);
}

void BrandWorkspace::copyColor(const QString& hex) {
  const auto format = services_.library.preferences().colorCopyFormat();
  const QString text = ColorUtil::formatted(hex, format);
  copy(text, text);
}

void BrandWorkspace::sampleColor(const std::function<void(const QString& hex)>& done) {
  colorSampler_ = services_.makeColorSampler();
  colorSampler_->show([workspace = QPointer(this), done](std::optional<SampledColor> color) {
    if (!workspace) return;
    // The sampler is still on the stack; it goes when this returns to the event loop's turn.
    const std::shared_ptr<ColorSampler> ended = std::move(workspace->colorSampler_);
    QMetaObject::invokeMethod(
        workspace, [ended] {}, Qt::QueuedConnection);
    if (color) done(ColorUtil::hex({color->red, color->green, color->blue}));
  });
}

void BrandWorkspace::editSection(const QUuid& section, const SectionChange& change) {
  if (!document_ || placeOf(document_->brand(), section) < 0) return;
  document_->edit([&](Brand& brand) { change(brand.sections[placeOf(brand, section)]); });
}

void BrandWorkspace::mutateSection(const QString& actionName, const QUuid& section,
                                   const SectionChange& change) {
  if (!document_ || placeOf(document_->brand(), section) < 0) return;
  document_->mutate(actionName, undoManager_,
                    [&](Brand& brand) { change(brand.sections[placeOf(brand, section)]); });
}

void BrandWorkspace::moveSection(const QUuid& section, int step) {
  if (!document_) return;
  const qsizetype from = placeOf(document_->brand(), section), to = from + step;
  if (from < 0 || to < 0 || to >= document_->brand().sections.size()) return;
  document_->edit([&](Brand& brand) { brand.sections.swapItemsAt(from, to); });
}

void BrandWorkspace::deleteSection(const QUuid& section) {
  if (!document_ || placeOf(document_->brand(), section) < 0) return;
  document_->edit([&](Brand& brand) { brand.sections.removeAt(placeOf(brand, section)); });
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

void BrandWorkspace::drag(const Item& item, const DragLook& look) {
  if (!document_) return;
  constexpr std::chrono::seconds patience(1);
  const auto drag = dragPreparation_.make(
      item,
      [services = services_.drags, package = document_->files(), item] {
        return TileDrag::makeDragProvider(services, package, item);
      },
      patience);
  if (drag) return services_.dragSession.drag({*drag}, look);
  toasts_.show(
      QStringLiteral("Still copying “%1” · Drag it again in a moment").arg(item.displayName()));
}

}  // namespace tarnloft
