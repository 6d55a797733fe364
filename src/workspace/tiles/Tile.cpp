#include "workspace/tiles/Tile.h"

#include "controls/dragging/Carrying.h"
#include "workspace/BrandWorkspace.h"
#include "workspace/tiles/TileMenuEntries.h"

#include <QPointer>

namespace tarnloft {
Tile::Tile(SectionModel& section, const Item& item)
    : section_(section), item_(item), facet_(TileFacet::make(*this)) {
  connect(&workspace()->selection(), &TileSelection::idsChanged, this, &Tile::selectionChanged);
  connect(&workspace()->selection(), &TileSelection::sectionIDChanged, this,
          &Tile::selectionChanged);
  connect(workspace(), &BrandWorkspace::placeChanged, facet_.get(), &TileFacet::changed);
}

void Tile::setItem(const Item& item) {
  if (item_ == item) return;
  Q_ASSERT(item.payload.index() == item_.payload.index());
  const bool isOther = item_.id != item.id;
  item_ = item;
  emit changed();
  emit facet_->changed();
  if (isOther) emit selectionChanged();
}

bool Tile::isSelected() const { return workspace()->selection().contains(item_.id, section_.id()); }

bool Tile::isSectionSelected() const {
  return workspace()->selection().sectionID() == section_.id();
}

void Tile::click(int modifiers) {
  TileSelection& selection = workspace()->selection();
  if (modifiers & Qt::ControlModifier) return selection.toggle(item_.id, section_.id());
  if (modifiers & Qt::ShiftModifier) {
    return selection.extend(item_.id, section_.id(), section_.itemOrder());
  }
  selection.clear();
  facet_->clicked();
}

void Tile::doubleClick(int modifiers) {
  if (!(modifiers & (Qt::ControlModifier | Qt::ShiftModifier))) facet_->doubleClicked();
}

void Tile::toggleSelected() { workspace()->selection().toggle(item_.id, section_.id()); }

void Tile::drag(QQuickItem* view, const QImage& grabbed, qreal radius) {
  const QPointer<Tile> self(this);  // it may go before the drag ends
  setDragged(true);
  carryOut(*view, grabbed, radius,
           [commands = &workspace()->commands(), item = item_](const DragLook& look) {
             commands->drag(item, look);
           });
  if (self) setDragged(false);
}

void Tile::setDragged(bool dragged) {
  isDragged_ = dragged;
  emit draggedChanged();
}

QVariantList Tile::menuEntries() const {
  QVariantList list;
  for (const MenuEntry& entry :
       tileMenuEntries(item_, section_.section(), workspace()->commands())) {
    list << QVariant::fromValue(entry);
  }
  return list;
}

}  // namespace tarnloft
