#pragma once

#include <QByteArray>
#include <QList>
#include <QPoint>
#include <QString>

#include <functional>
#include <optional>

class QImage;

namespace tarnloft {

// What only this process sees of a drag.
struct PrivatePayload {
  QString type;  // such as "com.quillmoor.tarnloft.item"
  QByteArray bytes;
};

// One thing of a drag, in up to three forms side by side; the receiver takes the one it knows.
struct DragItem {
  std::optional<QString> file;  // the path of a file that exists and stays
  QString suggestedName;        // the file's name without its extension; may be empty
  std::optional<PrivatePayload> payload;
  // Makes a TIFF picture of it, of so many bytes at most, when a receiver asks, perhaps long after
  // the drag. Main thread, which waits for it. None if it can't be made; null for a thing that is
  // no picture.
  std::function<std::optional<QByteArray>(qint64 maxBytes)> makeTiff;
};

// What follows the pointer.
struct DragLook {
  const QImage& picture;
  QPoint hotSpot;  // where in the picture the pointer is, in points
};

// Starts the desktop's drags. Main thread, in the handler of a real press that has begun to move.
class DragSession {
 public:
  virtual ~DragSession() = default;

  // Offers copies of the things, in their order, until the user lets go. A receiver may ask for
  // files and pictures after that, so nothing of them may be deleted then.
  virtual void drag(const QList<DragItem>& items, const DragLook& look) = 0;
};

}  // namespace tarnloft
