#include "controls/pointing/PopupCover.h"

#include <QQuickWindow>

namespace tarnloft {

bool PopupCover::covers(const QQuickItem* item, const QPointF& scenePoint) {
  if (!item || !item->window()) return false;
  for (const QQuickItem* const layer : item->window()->contentItem()->childItems()) {
    if (!layer->inherits("QQuickOverlay")) continue;
    const QList<QQuickItem*> popups = layer->childItems();
    for (auto top = popups.rbegin(); top != popups.rend(); ++top) {
      const QQuickItem* const popup = *top;
      if (popup->isAncestorOf(item)) return false;
      const QObject* const owner = popup->parent();
      if (!popup->isVisible() || !owner || !owner->inherits("QQuickPopup")) continue;
      if (owner->property("modal").toBool() || popup->contains(popup->mapFromScene(scenePoint)))
        return true;
    }
  }
  return false;
}

}  // namespace tarnloft
