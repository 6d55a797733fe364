#pragma once

#include "controls/pointing/TouchpadMouse.h"
#include "controls/theme/Theme.h"
#include "workspace/TestWorkspace.h"
#include "workspace/dragging/DropTarget.h"
#include "workspace/flow/TileFlow.h"

#include <QAccessible>
#include <QPointingDevice>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>
#include <qpa/qwindowsysteminterface.h>

#include <optional>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_WorkspacePlugin)

namespace tarnloft {

// A brand's page in a window without a display, 1000 by 760 points.
class TestPage : public TestWorkspace {
 public:
  explicit TestPage(const QList<Section>& sections) : TestWorkspace(sections) {
    QTest::failOnWarning(QRegularExpression("."));
    QAccessible::setActive(true);
    Theme::of(*view.engine());
    view.installEventFilter(&padMouse_);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(1000, 760);
    show();
    view.show();
    settle();
  }

  // A new page for what is open now.
  void show() {
    view.setInitialProperties({{"workspace", QVariant::fromValue(workspace.get())}});
    view.setSource(QUrl("qrc:/qt-project.org/imports/TarnLoft/Workspace/BrandPage.qml"));
  }

  // Lets two frames pass, so that all that is due has been laid out and drawn.
  void settle() {
    for (int frame = 0; frame < 2; ++frame) {
      QCoreApplication::processEvents();
      (void)view.grabWindow();
    }
  }

  QList<TileFlow*> flows() const {
    QList<TileFlow*> found;
    collect(view.rootObject(), found);
    return found;
  }
  TileFlow& flow(int section = 0) const { return *flows().at(section); }
  // The items that show something, blocks included.
  QList<QQuickItem*> tiles(int section = 0) const {
    QList<QQuickItem*> found;
    for (QQuickItem* child : flow(section).childItems()) {
      if (child->isVisible() && tileOf(child)) found << child;
    }
    return found;
  }
  static Tile* tileOf(QQuickItem* shown) { return shown->property("tile").value<Tile*>(); }
  QQuickItem* tileNamed(const QString& name) const {
    for (int section = 0; section < flows().size(); ++section) {
      for (QQuickItem* tile : tiles(section)) {
        if (tileOf(tile)->name() == name) return tile;
      }
    }
    return nullptr;
  }
  QQuickItem* scroll() const { return find("QQuickFlickable", view.rootObject()); }
  double scrolled() const { return scroll()->property("contentY").toDouble(); }
  void scrollTo(double y) {
    scroll()->setProperty("contentY", y);
    settle();
  }
  // As far as it goes.
  double scrollToEnd() {
    const auto end = [&] {
      return scroll()->property("contentHeight").toDouble() - scroll()->height();
    };
    scrollTo(1e6);
    scrollTo(end());
    return scrolled();
  }

  // In the window, in the middle of a tile's card.
  QPoint middleOf(const QString& name) const {
    return tileNamed(name)->mapToScene({60, 50}).toPoint();
  }
  void click(const QString& name, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(&view, Qt::LeftButton, modifiers, middleOf(name));
  }
  // From a press to a release of the button, of a mouse that the desktop takes for a touchpad. Or
  // until a drag has begun, which takes moves and the release away on Wayland.
  void padDrag(Qt::MouseButton button, const QPoint& from, std::optional<QPoint> to = {},
               const bool* isTaken = nullptr) {
    constexpr int steps = 5;
    time_ += 1000;  // no click is the second one of two
    const auto send = [&](QEvent::Type type, const QPoint& at, Qt::MouseButton changed,
                          Qt::MouseButtons held) {
      QMouseEvent event(type, at, view.mapToGlobal(at), changed, held, {}, &pad_);
      event.setTimestamp(time_ += 10);
      QCoreApplication::sendEvent(&view, &event);
    };
    send(QEvent::MouseButtonPress, from, button, button);
    for (int step = 1; to && *to != from && step <= steps; ++step) {
      if (isTaken && *isTaken) return;
      send(QEvent::MouseMove, from + (*to - from) * step / steps, Qt::NoButton, button);
      settle();
    }
    send(QEvent::MouseButtonRelease, to.value_or(from), button, {});
    settle();
  }
  void key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&view, Qt::Key(key), modifiers);
  }
  // The tile that has the keyboard; empty if none has.
  QString focused() const {
    QQuickItem* item = view.activeFocusItem();
    return item && tileOf(item) ? tileOf(item)->name() : QString();
  }

  QQuickView view;

 private:
  using Capability = QInputDevice::Capability;
  QPointingDevice pad_{"touchpad",
                       1,
                       QInputDevice::DeviceType::TouchPad,
                       QPointingDevice::PointerType::Finger,
                       Capability::Position | Capability::MouseEmulation,
                       1,
                       3};
  TouchpadMouse padMouse_;
  const bool isKnown_ = (QWindowSystemInterface::registerInputDevice(&pad_), true);
  quint64 time_ = 0;

  static void collect(QQuickItem* item, QList<TileFlow*>& found) {
    if (auto* flow = qobject_cast<TileFlow*>(item)) found << flow;
    for (QQuickItem* child : item->childItems()) collect(child, found);
  }
  static QQuickItem* find(const char* type, QQuickItem* item) {
    if (item->inherits(type)) return item;
    for (QQuickItem* child : item->childItems()) {
      if (QQuickItem* found = find(type, child)) return found;
    }
    return nullptr;
  }
};

}  // namespace tarnloft
