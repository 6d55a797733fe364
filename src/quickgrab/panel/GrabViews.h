#pragma once

#include "quickgrab/panel/QuickGrab.h"

#include <QHash>
#include <QQmlComponent>

#include <vector>

namespace tarnloft {

// The views of the panel's things in sight, in their order. A view whose thing has gone serves
// another of its kind, for a letter typed may exchange them all. Main thread.
class GrabViews : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::QuickGrab* grab MEMBER grab_ REQUIRED)
  // Makes a view, which has a required property `thing`, stands where that tells, and by `held`
  // says that it is in use just now and must not turn into another.
  Q_PROPERTY(QQmlComponent* view MEMBER view_ REQUIRED)

 public:
  using QQuickItem::QQuickItem;

 protected:
  void componentComplete() override;

 private:
  struct View {
    GrabThing thing;
    QQuickItem* item = nullptr;  // null where none can be made
  };

  void follow();
  void show(const QList<GrabThing>& things);
  void show(const GrabThing& thing, QQuickItem*& before);
  View obtain(const GrabThing& thing);
  QQuickItem* make(const GrabThing& thing);
  void release(const View& view);

  QuickGrab* grab_ = nullptr;
  QQmlComponent* view_ = nullptr;
  QHash<QUuid, View> views_;   // by the thing's id
  std::vector<View> waiting_;  // for another thing; the newest last
  bool isStale_ = false;
  bool isFollowing_ = false;
};

}  // namespace tarnloft
