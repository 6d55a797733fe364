#pragma once

#include <QCoreApplication>

namespace tarnloft {

// Ends at once what was left to a later turn of the event loop (`deleteLater`), as the toolkit does
// with views of lists: before something goes that they use, or when no turn comes any more.
inline void endDeferred() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

// Does so where it stands among the members of what is ending.
class DeferredEnds {
 public:
  DeferredEnds() = default;
  ~DeferredEnds() { endDeferred(); }
  Q_DISABLE_COPY_MOVE(DeferredEnds)
};

}  // namespace tarnloft
