#pragma once

#include "platform/DragSession.h"
#include "platform/DroppedThing.h"

#include <QUuid>

// The private half of a tile's drag: which item it is. No other process sees it.
namespace tarnloft::ItemDrag {

inline const QString type = QStringLiteral("com.quillmoor.tarnloft.item");

// The drag with the id beside what it carries already.
DragItem provider(const QUuid& id, const QString& payloadType, DragItem base);

// Loads the id of the first thing of that private type; the others are not looked at. False if
// there is none. `done` doesn't run for a payload that is no id. Main thread.
bool loadUUID(const DroppedThings& things, const QString& payloadType,
              const std::function<void(const QUuid& id)>& done);

}  // namespace tarnloft::ItemDrag
