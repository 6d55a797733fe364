#pragma once

#include "platform/DragSession.h"

#include <QObject>

namespace tarnloft {

// Drags through the window system. It is their source itself, and so outlives them: a receiver that
// asks late finds its data even when the view that began the drag has gone.
class QtDragSession : public QObject, public DragSession {
  Q_OBJECT

 public:
  void drag(const QList<DragItem>& items, const DragLook& look) override;
};

}  // namespace tarnloft
