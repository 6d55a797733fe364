#include "workspace/tiles/Tile.h"

#include "workspace/BrandWorkspace.h"
#include "workspace/dragging/TilePicture.h"
#include "workspace/tiles/TileMenuEntries.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QQuickWindow>

namespace tarnloft {
namespace {

// On Wayland the window system's drag takes the release away, without which its handler would go on
// at the next press, wherever that is.
void endPress(QQuickWindow& window) {
  constexpr QPointF outside(-1, -1);
  for (const QInputDevice* const device : QInputDevice::devices()) {
    const auto* const pointer = qobject_cast<const QPointingDevice*>(device);
    if (!pointer || pointer->type() == QInputDevice::DeviceType::TouchScreen) continue;
    QMouseEvent release(QEvent::MouseButtonRelease, outside, window.mapToGlobal(outside),
                        Qt::LeftButton, Qt::NoButton, {}, pointer);
    QCoreApplication::sendEvent(&window, &release);
  }
}

}  // namespace

Tile::Tile(SectionModel& section, const Item& item)
    : section_(section), item_(item), facet_(TileFacet::make(*this)) {
  connect(&workspace()->selection(), &TileSelection::idsChanged, this, &Tile::selectionChanged);
  connect(&workspace()->selection(), &TileSelection::sectionIDChanged, this,
          &Tile::selectionChanged);
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

void Tile::toggleSelected() { workspace()->selection().toggle(item_.id, section_.id()); }

void Tile::drag(QQuickItem* view, const QImage& grabbed, qreal radius) {
  constexpr QPoint hotSpot{-14, -10};  // right of the pointer and below it
  const Item item = item_;
  // Whole turns of the event loop pass until the drag has ended.
  const QPointer<Tile> self(this);
  const QPointer<QQuickWindow> window(view->window());
  setDragged(true);
  workspace()->drag(item, {carriedPicture(grabbed, *view, radius), hotSpot});
  if (window) endPress(*window);
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
