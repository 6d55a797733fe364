#include "workspace/tiles/Tile.h"

#include "pictures/HexColor.h"
#include "workspace/BrandWorkspace.h"
#include "workspace/dragging/TilePicture.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QQuickWindow>

#include <algorithm>

namespace tarnloft {
namespace {

// The value of one kind; null for another.
template <class Payload>
const auto* valueOf(const Item& item) {
  const auto* payload = std::get_if<Payload>(&item.payload);
  return payload ? &payload->value : nullptr;
}

qsizetype placeOf(const Section& section, const QUuid& item) {
  qsizetype place = 0;
  for (const Item& one : section.items) {
    if (one.id == item) return place;
    ++place;
  }
  return -1;
}

void writeText(Item& item, const QString& text) {
  if (auto* header = std::get_if<HeaderPayload>(&item.payload)) header->text = text;
  if (auto* block = std::get_if<TextPayload>(&item.payload)) block->body = text;
}

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

Tile::Tile(SectionModel& section, const Item& item) : section_(section), item_(item) {
  connect(&workspace()->selection(), &TileSelection::idsChanged, this, &Tile::selectionChanged);
  connect(&workspace()->selection(), &TileSelection::sectionIDChanged, this,
          &Tile::selectionChanged);
}

void Tile::setItem(const Item& item) {
  if (item_ == item) return;
  const bool isOther = item_.id != item.id;
  item_ = item;
  emit changed();
  if (isOther) emit selectionChanged();
}

QColor Tile::color() const {
  const auto* value = valueOf<ColorPayload>(item_);
  return value ? shownColor(value->hex) : QColor();
}

QString Tile::ink() const {
  const auto* value = valueOf<ColorPayload>(item_);
  switch (value ? ColorUtil::contrastingText(value->hex) : TextColor::primary) {
    case TextColor::black: return QStringLiteral("black");
    case TextColor::white: return QStringLiteral("white");
    case TextColor::primary: break;
  }
  return {};
}

GradientLook Tile::gradient() const {
  const auto* value = valueOf<GradientPayload>(item_);
  return value ? GradientLook{*value} : GradientLook();
}

QString Tile::path() const {
  const bool isClip = kind() == TileKind::Kind::Video;
  const auto asset = isClip ? item_.exportableAsset() : TileFacts::picture(item_);
  return asset ? workspace()->assetPath(*asset) : QString();
}

QString Tile::failureHelp() const {
  const auto name = TileFacts::pictureName(item_);
  if (!name) {
    return QStringLiteral("Couldn't load this image — the file may be corrupt. Re-import it.");
  }
  return QStringLiteral("Couldn't load “%1” — the file may be corrupt. Re-import it.").arg(*name);
}

QString Tile::fontFamily() const {
  const auto* value = valueOf<FontPayload>(item_);
  return value ? value->family : QString();
}

QString Tile::snippet() const {
  constexpr qsizetype mostShown = 1500;  // laying out a whole file would hold up the window
  const auto* value = valueOf<CodePayload>(item_);
  return value ? value->snippet.left(mostShown) : QString();
}

int Tile::variantCount() const {
  const auto* value = valueOf<LogoPayload>(item_);
  return value ? int(value->variants.size()) : 0;
}

int Tile::level() const {
  const auto* header = std::get_if<HeaderPayload>(&item_.payload);
  return header ? int(std::clamp<qint64>(header->level, 0, 9)) : 0;
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
  if (const auto* value = valueOf<ColorPayload>(item_)) workspace()->copyColor(value->hex);
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

void Tile::setText(const QString& text) {
  if (text == this->text()) return;
  const QUuid id = item_.id;
  workspace()->editSection(section_.id(), [&](Section& section) {
    const qsizetype place = placeOf(section, id);
    if (place >= 0) writeText(section.items[place], text);
  });
}

void Tile::remove() {
  const QUuid id = item_.id;
  workspace()->editSection(section_.id(), [&](Section& section) {
    for (qsizetype place = placeOf(section, id); place >= 0; place = placeOf(section, id)) {
      (void)section.items.takeAt(place);
    }
  });
}

}  // namespace tarnloft
