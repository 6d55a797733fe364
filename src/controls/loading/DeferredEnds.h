#pragma once

#include <QCoreApplication>
#include <QQuickItem>

namespace tarnloft {

// Ends at once what was left to a later turn of the event loop (`deleteLater`): before something
// goes that it uses, or when no turn comes any more.
inline void endDeferred() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  // The toolkit leaves the views of a list to the application, and those of lists in them once they
  // go themselves.
  const auto left = [] {
    return qApp->findChild<QQuickItem*>(QString(), Qt::FindDirectChildrenOnly);
  };
  while (QQuickItem* const view = left()) delete view;
}

// Does so where it stands among the members of what is ending.
class DeferredEnds {
 public:
  DeferredEnds() = default;
  ~DeferredEnds() { endDeferred(); }
  Q_DISABLE_COPY_MOVE(DeferredEnds)
};

}  // namespace tarnloft
