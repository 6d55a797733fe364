#pragma once

#include "platform/DroppedThing.h"

#include <QList>
#include <QThreadPool>
#include <QUrl>

namespace tarnloft {

// Reads drops of the window system. The transfer from another program runs in the drop's event, as
// the window system ends the drop with it; pictures of this process are encoded by a worker.
class MimeDrops : public DropReader {
 public:
  // The workers outlive every drop.
  explicit MimeDrops(QThreadPool& workers) : workers_(workers) {}

  bool offers(const QMimeData& drag, const QString& type) const override;
  DroppedThings things(const QMimeData& drop) const override;

 private:
  bool holdsFile(const QList<QUrl>& urls) const;

  QThreadPool& workers_;
};

}  // namespace tarnloft
