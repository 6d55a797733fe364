#include "assets/ItemDrag.h"

#include "model/Uuid.h"

#include <algorithm>

namespace tarnloft::ItemDrag {

DragItem provider(const QUuid& id, const QString& payloadType, DragItem base) {
  base.payload = PrivatePayload{payloadType, canonicalString(id).toUtf8()};
  return base;
}

bool loadUUID(const DroppedThings& things, const QString& payloadType,
              const std::function<void(const QUuid&)>& done) {
  const auto found = std::find_if(things.begin(), things.end(),
                                  [&](const auto& thing) { return thing->conforms(payloadType); });
  if (found == things.end()) return false;
  (*found)->loadData(payloadType, [done](const std::optional<QByteArray>& bytes) {
    if (!bytes) return;
    const auto id = uuidFromText({bytes->constData(), size_t(bytes->size())});
    if (id) done(*id);
  });
  return true;
}

}  // namespace tarnloft::ItemDrag
