#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QMimeData;

namespace tarnloft {

// What a drop may hold, beside the private types of this process's own drags.
namespace DropType {
inline const QString fileURL = QStringLiteral("text/uri-list");
inline const QString image = QStringLiteral("image/*");
}  // namespace DropType

// One thing of a drop. Main thread. What another program offers is there during the drop's event
// and gone after it, so both loads begin then; `done` runs once for each, on the main thread, at
// once or later.
class DroppedThing {
 public:
  virtual ~DroppedThing() = default;

  // Whether the thing can be had as that type. Asks the source for nothing.
  virtual bool conforms(const QString& type) const = 0;

  // A local file's path.
  virtual void loadURL(const std::function<void(std::optional<QString> path)>& done) = 0;

  // For an image, the bytes as the source gives them, in whatever format.
  virtual void loadData(const QString& type,
                        const std::function<void(std::optional<QByteArray> bytes)>& done) = 0;

  // The name that the source knows it by, perhaps with an extension; empty if it tells none.
  virtual QString suggestedName() const = 0;
};

using DroppedThings = QList<std::shared_ptr<DroppedThing>>;

// Tells what the desktop's own form of a drop holds. Main thread.
class DropReader {
 public:
  virtual ~DropReader() = default;

  // For a drag that hovers: whether some thing conforms to the type, by names alone.
  virtual bool offers(const QMimeData& drag, const QString& type) const = 0;

  // The things of a drop in its order. Each file is one, and what else comes with it is the same
  // thing in another form.
  virtual DroppedThings things(const QMimeData& drop) const = 0;
};

}  // namespace tarnloft
