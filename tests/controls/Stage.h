#pragma once

#include "controls/theme/Theme.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <memory>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)

namespace tarnloft {

// A window with a piece of QML in it, bound as all views are. The piece may add to `log`, by
// `log("clicked")`, and its items are found by their `objectName`.
class Stage {
 public:
  explicit Stage(const QString& qml) {
    m_view.setColor(Theme::of(*m_view.engine()).windowBackground());
    QQmlComponent component(m_view.engine());
    component.setData(frame.arg(qml).toUtf8(), QUrl("qrc:/stage.qml"));
    QObject* root = component.create();
    if (!root) qFatal("%s", qPrintable(component.errorString()));
    m_view.setContent({}, nullptr, root);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.resize(600, 500);
    m_view.show();
    m_view.requestActivate();  // where no window manager does it
    m_ready = QTest::qWaitForWindowActive(&m_view);
  }

  bool ready() const { return m_ready; }
  QQuickView* window() { return &m_view; }
  QString log() const { return m_view.rootObject()->property("logged").toString(); }

  template <typename Type = QObject>
  Type* find(const QString& name) const {
    auto* found = m_view.rootObject()->findChild<Type*>(name);
    return found ? found : qobject_cast<Type*>(within(m_view.rootObject(), name));
  }

  // The value of a QML expression in the piece's root.
  QVariant eval(const QString& expression) const {
    QQmlExpression run(qmlContext(m_view.rootObject()), m_view.rootObject(), expression);
    return run.evaluate();
  }

  void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&m_view, static_cast<Qt::Key>(key), modifiers);
  }

  void click(const QQuickItem* item, Qt::MouseButton button = Qt::LeftButton) {
    const QPointF middle(item->width() / 2, item->height() / 2);
    QTest::mouseClick(&m_view, button, {}, item->mapToScene(middle).toPoint());
  }

  QString focused() const {
    const QQuickItem* item = m_view.activeFocusItem();
    return item ? item->objectName() : QString();
  }

 private:
  // Delegates are no children but of what shows them.
  static QQuickItem* within(QQuickItem* item, const QString& name) {
    if (item->objectName() == name) return item;
    for (QQuickItem* child : item->childItems())
      if (QQuickItem* found = within(child, name)) return found;
    return nullptr;
  }

  static inline const QString frame =
      "pragma ComponentBehavior: Bound\nimport QtQuick\nimport TarnLoft.Controls\n"
      "Item {\n  property string logged\n"
      "  function log(what) { logged += (logged ? ' ' : '') + what }\n"
      "  id: stage\n  %1\n}\n";

  QQuickView m_view;
  bool m_ready = false;
};

}  // namespace tarnloft
