#pragma once

#include "controls/theme/Theme.h"
#include "controls/theme/Typography.h"
#include "shell/TestShell.h"
#include "shell/window/AccentTint.h"
#include "shell/window/MainWindow.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SheetsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_ShellPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_WorkspacePlugin)

namespace tarnloft {

constexpr auto row = QAccessible::ListItem;
constexpr auto button = QAccessible::Button;
constexpr auto entry = QAccessible::MenuItem;
constexpr auto dialog = QAccessible::Dialog;
constexpr auto alert = QAccessible::AlertMessage;

// The main window over a library, driven by keys and the pointer as a user would.
struct Views : TestShell {
  IniPreferences state{library.disk.path("state.ini"), library.disk.log};
  QQmlEngine engine;
  UpdaterViewModel* updater = nullptr;  // a test may put one in
  std::unique_ptr<AccentTint> tint;
  std::unique_ptr<MainWindow> main;

  // With these brands besides. From then on no complaint of a view goes unseen.
  void start(const QStringList& brands = {}) {
    for (const QString& brand : brands) library.add(brand);
    QTest::failOnWarning(QRegularExpression("qrc:|QML|Binding"));
    QAccessible::setActive(true);
    prepareTypography();
    Theme& theme = Theme::of(engine);
    LibraryStore& store = library.start();
    tint = std::make_unique<AccentTint>(store, theme);
    main = std::make_unique<MainWindow>(engine, services(), state, updater);
    QVERIFY(main->open());
    QVERIFY(QTest::qWaitForWindowActive(&window()));
    QTRY_VERIFY(window().property("late").value<QObject*>());
  }
  QQuickWindow& window() const { return *main->window(); }

  // As a desktop that tiles makes it, whatever it asks for.
  void narrow() const {
    window().setMinimumSize({});
    window().resize(500, 600);
  }
  static int left(const QQuickItem* item) { return item ? int(item->mapToScene({}).x()) : -1; }

  // The item that assistive technology knows by that role and name; null for none that is visible.
  QQuickItem* item(QAccessible::Role role, const QString& name,
                   QQuickItem* within = nullptr) const {
    return find(within ? within : window().contentItem(), role, name);
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QTest::keyClick(&window(), key, modifiers);
  }
  void type(const QString& text) const {
    for (const QChar c : text) QTest::keyClick(&window(), c.toLatin1());
  }
  static QPoint centerOf(const QQuickItem* item) {
    return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
  }
  void click(const QQuickItem* item, Qt::MouseButton which = Qt::LeftButton) const {
    QTest::mouseClick(&window(), which, {}, centerOf(item));
  }

 private:
  static QQuickItem* find(QQuickItem* top, QAccessible::Role role, const QString& name) {
    for (QQuickItem* child : top->childItems()) {
      if (!child->isVisible()) continue;
      QAccessibleInterface* const known = QAccessible::queryAccessibleInterface(child);
      if (known && known->role() == role && known->text(QAccessible::Name) == name) return child;
      if (QQuickItem* const found = find(child, role, name)) return found;
    }
    return nullptr;
  }
};

}  // namespace tarnloft
