#pragma once

#include "controls/dragging/DropReceiver.h"
#include "workspace/tiles/Tile.h"

namespace tarnloft {

// Takes drops for a section or, with `tile`, for the place in front of one of its items. A section
// takes items, files and pictures; an item takes items alone, and leaves the rest to what lies
// behind it.
class DropTarget : public tarnloft::DropReceiver {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::SectionModel* section MEMBER section_ NOTIFY targetChanged REQUIRED)
  Q_PROPERTY(tarnloft::Tile* tile MEMBER tile_ NOTIFY targetChanged)

 public:
  using DropReceiver::DropReceiver;

 signals:
  void targetChanged();

 protected:
  bool takes(const QMimeData& data) const override;
  bool take(const QMimeData& data) override;

 private:
  SectionModel* section_ = nullptr;
  Tile* tile_ = nullptr;
};

}  // namespace tarnloft
