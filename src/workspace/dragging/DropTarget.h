#pragma once

#include "workspace/tiles/Tile.h"

#include <QQuickItem>

namespace tarnloft {

// Takes drops for a section or, with `tile`, for the place in front of one of its items. A section
// takes items, files and pictures; an item takes items alone, and leaves the rest to what lies
// behind it.
class DropTarget : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::SectionModel* section MEMBER section_ NOTIFY targetChanged REQUIRED)
  Q_PROPERTY(tarnloft::Tile* tile MEMBER tile_ NOTIFY targetChanged)
  // Something that it takes hovers over it.
  Q_PROPERTY(bool targeted READ isTargeted NOTIFY targetedChanged)

 public:
  explicit DropTarget(QQuickItem* parent = nullptr);

  bool isTargeted() const { return isTargeted_; }

 signals:
  void targetChanged();
  void targetedChanged();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  bool takes(const QMimeData& data) const;
  void setTargeted(bool targeted);

  SectionModel* section_ = nullptr;
  Tile* tile_ = nullptr;
  bool isTargeted_ = false;
};

}  // namespace tarnloft
