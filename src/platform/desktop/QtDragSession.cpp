#include "platform/desktop/QtDragSession.h"

#include "platform/desktop/DragData.h"

#include <QDrag>
#include <QPixmap>

namespace tarnloft {

void QtDragSession::drag(const QList<DragItem>& items, const DragLook& look) {
  auto* drag = new QDrag(this);  // the window system ends its life
  drag->setMimeData(new DragData(items));
  drag->setPixmap(QPixmap::fromImage(look.picture));
  drag->setHotSpot(look.hotSpot);
  drag->exec(Qt::CopyAction);
}

}  // namespace tarnloft
