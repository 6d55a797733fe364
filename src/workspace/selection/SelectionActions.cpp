#include "workspace/selection/SelectionActions.h"

#include "controls/dragging/Carrying.h"
#include "controls/sheets/ChoiceSheet.h"
#include "controls/sheets/SheetHost.h"
#include "model/ShownText.h"
#include "workspace/ToastCenter.h"

#include <utility>

namespace tarnloft {
namespace {

QString keyOf(const QList<AssetRef>& assets) {
  QStringList names;
  for (const AssetRef& asset : assets)
    names << asset.filename + QLatin1Char('/') + asset.originalName;
  return names.join(QLatin1Char('/'));
}

}  // namespace

SelectionActions::SelectionActions(BrandDocument& document, const WindowParts& window,
                                   const WorkspaceServices& services)
    : document_(&document), window_(window), services_(services) {
  connect(&document, &BrandDocument::brandChanged, this, &SelectionActions::refreshSoon);
  connect(&window.selection, &TileSelection::idsChanged, this, &SelectionActions::refresh);
  refresh();
}

GroupOperations SelectionActions::operations() const {
  return {*document_, window_.selection, window_.undoManager};
}

void SelectionActions::refreshSoon() {
  if (std::exchange(isRefreshDue_, true)) return;
  QMetaObject::invokeMethod(this, &SelectionActions::refresh, Qt::QueuedConnection);
}

void SelectionActions::refresh() {
  isRefreshDue_ = false;
  const Facts now = facts();
  if (facts_ == now) return;
  facts_ = now;
  emit changed();
}

SelectionActions::Facts SelectionActions::facts() const {
  const int count = window_.selection.count();
  if (!document_ || count == 0) return {};
  const GroupOperations operations = this->operations();
  Facts facts;
  facts.count = count;
  facts.exportable = int(operations.exportableCount());
  facts.canGroup = operations.canGroupAsLogo();
  constexpr qsizetype mostTargets = 40;  // in a menu
  facts.hasManyTargets = document_->brand().sections.size() > mostTargets;
  if (!facts.hasManyTargets) findTargets(facts.targets, facts.targetIDs);
  return facts;
}

// The sections that the selected tiles aren't in.
void SelectionActions::findTargets(QStringList& names, QList<QUuid>& ids) const {
  for (const Section& section : document_->brand().sections) {
    if (section.id == window_.selection.sectionID()) continue;
    names << (section.name.isEmpty() ? QStringLiteral("Untitled Section")
                                     : shownText(section.name, mostInMenu));
    ids << section.id;
  }
}

void SelectionActions::selectAll() {
  if (document_) operations().selectAllInContext();
}

void SelectionActions::clear() { window_.selection.clear(); }

void SelectionActions::groupAsLogo() {
  if (!document_) return;
  if (const auto told = operations().groupAsLogo()) window_.toasts.show(*told);
}

void SelectionActions::duplicate() {
  if (document_) operations().bulkDuplicate();
}

void SelectionActions::moveTo(int target) {
  if (document_ && target >= 0 && target < facts_.targetIDs.size())
    operations().bulkMove(facts_.targetIDs.at(target));
}

void SelectionActions::askTarget() {
  if (!document_ || facts_.count == 0) return;
  QStringList names;
  QList<QUuid> ids;
  findTargets(names, ids);
  const auto move = [this, ids](qsizetype place) {
    if (document_) operations().bulkMove(ids.at(place));
  };
  auto* const sheet = window_.sheets.show(std::make_unique<ChoiceSheet>(
      ChoiceSheet::Words{QStringLiteral("Move to…"), QStringLiteral("Find a section")}, names,
      move));
  connect(this, &SelectionActions::changed, sheet, &SheetModel::finished);
  connect(this, &QObject::destroyed, sheet, &SheetModel::finished);
}

void SelectionActions::remove() {
  if (!document_) return;
  if (const auto told = operations().bulkDelete()) window_.toasts.show(*told);
}

void SelectionActions::drag(QQuickItem* view, const QImage& grabbed, qreal radius) {
  if (!document_) return;
  constexpr std::chrono::seconds patience(1);
  const QList<AssetRef> assets = operations().selectedExports();
  const auto files = dragPreparation_.make(
      keyOf(assets),
      [&store = services_.drags.files, package = document_->files(), assets] {
        return TileDrag::providers(TileDrag::exportURLs(store, package, assets));
      },
      patience);
  if (!files) {
    return window_.toasts.show(QStringLiteral("Still copying · Drag again in a moment"));
  }
  if (files->isEmpty()) return window_.toasts.show(QStringLiteral("The files can’t be read"));
  carryOut(*view, grabbed, radius, [&session = services_.dragSession, &files](const auto& look) {
    session.drag(*files, look);
  });
}

}  // namespace tarnloft
