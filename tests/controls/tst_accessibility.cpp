#include "Stage.h"

#include <QAccessible>
#include <QGuiApplication>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)

Q_IMPORT_QML_PLUGIN(TarnLoft_GalleryPlugin)

using namespace tarnloft;

namespace {

void collect(QAccessibleInterface* node, QList<QAccessibleInterface*>& all) {
  if (!node) return;
  all << node;
  for (int i = 0; i < node->childCount(); ++i) collect(node->child(i), all);
}

QList<QAccessibleInterface*> treeOf(QObject* root) {
  QList<QAccessibleInterface*> all;
  collect(QAccessible::queryAccessibleInterface(root), all);
  return all;
}

QAccessibleInterface* subject(const Stage& stage) {
  return QAccessible::queryAccessibleInterface(stage.find("subject"));
}

// The piece of QML with the name by which `subject` finds it.
QString named(QString qml) {
  return qml.replace(qml.indexOf('{'), 1, QStringLiteral("{ objectName: 'subject'; ")) + " }";
}

QString text(QAccessibleInterface* node) { return node->text(QAccessible::Name); }

}  // namespace

// What assistive technology sees and can do.
class TestAccessibility : public QObject {
  Q_OBJECT

 private slots:
  void everythingInTheGalleryThatTakesTheFocusIsNamed() {
    QAccessible::setActive(true);
    QQuickView view;
    Theme::of(*view.engine());
    QQmlComponent component(view.engine());
    component.setData(
        "import QtQuick\nimport TarnLoft.Gallery\nColumn { TypePage {} ColorsPage {} ButtonsPage "
        "{}\n"
        "FieldsPage {} PickersPage {} MenusPage {} PanelsPage {} ListsPage {} TilesPage {} }",
        QUrl(QStringLiteral("qrc:/all.qml")));
    view.setContent({}, nullptr, component.create());
    view.resize(1160, 3000);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    int focusable = 0;
    for (QAccessibleInterface* node : treeOf(&view)) {
      if (!node->state().focusable) continue;
      auto* item = qobject_cast<QQuickItem*>(node->object());
      if (!item || !item->activeFocusOnTab()) continue;
      ++focusable;
      QVERIFY2(!text(node).isEmpty(), item->metaObject()->className());
      QVERIFY2(node->role() != QAccessible::NoRole && node->role() != QAccessible::Client,
               item->metaObject()->className());
    }
    QVERIFY2(focusable > 50, qPrintable(QString::number(focusable)));
  }

  void rolesAndNames_data() {
    QTest::addColumn<QString>("qml");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* qml, QAccessible::Role role, const char* name) {
      QTest::newRow(qml) << QString::fromUtf8(qml) << role << QString::fromUtf8(name);
    };
    row("Button { text: 'Create'", QAccessible::Button, "Create");
    row("Button { symbol: 'trash'; help: 'Delete'", QAccessible::Button, "Delete");
    row("MenuButton { text: 'Move to…'; menu: Menu {}", QAccessible::ButtonMenu, "Move to…");
    row("TextField { placeholderText: 'Brand name'", QAccessible::EditableText, "Brand name");
    row("TextArea { accessibleName: 'Note'", QAccessible::EditableText, "Note");
    row("Switch { accessibleName: 'Show Dock icon'", QAccessible::CheckBox, "Show Dock icon");
    row("CheckBox { text: 'Colors'", QAccessible::CheckBox, "Colors");
    row("SelectionMark { selected: true", QAccessible::CheckBox, "Deselect");
    row("Slider { accessibleName: 'Quality'", QAccessible::Slider, "Quality");
    row("ListRow { text: 'Acme'", QAccessible::ListItem, "Acme");
    row("PopUpPicker { accessibleName: 'Theme'; options: [PickerOption { text: 'Dark' }]",
        QAccessible::ComboBox, "Theme, Dark");
    row("ColorWell { accessibleName: 'Tint'; color: '#4c6fff'", QAccessible::Button,
        "Tint, #4C6FFF");
    row("SegmentedPicker { accessibleName: 'Tile size'", QAccessible::Grouping, "Tile size");
    row("Toast { message: 'Copied'", QAccessible::AlertMessage, "Copied");
    row("Label { text: 'Brands'", QAccessible::StaticText, "Brands");
  }

  void rolesAndNames() {
    QFETCH(QString, qml);
    QFETCH(QAccessible::Role, role);
    QFETCH(QString, name);
    for (const bool before : {true, false}) {  // assistive technology may come later
      QAccessible::setActive(before);
      const Stage stage(named(qml));
      QAccessible::setActive(true);
      QAccessibleInterface* node = subject(stage);
      QVERIFY(node);
      QCOMPARE(node->role(), role);
      QCOMPARE(text(node), name);
    }
  }

  void pressing_data() {
    QTest::addColumn<QString>("qml");
    QTest::addColumn<QString>("log");
    QTest::newRow("button") << "Button { text: 'A'; onClicked: log('clicked')"
                            << "clicked";
    QTest::newRow("switch") << "Switch { accessibleName: 'A'; onToggled: log(checked)"
                            << "true";
    QTest::newRow("check box") << "CheckBox { text: 'A'; onToggled: log(checked)"
                               << "true";
    QTest::newRow("row") << "ListRow { text: 'A'; onClicked: log('chosen')"
                         << "chosen";
    QTest::newRow("selection mark") << "SelectionMark { onClicked: log('marked')"
                                    << "marked";
  }

  void whatOpensAMenuTellsOfIt_data() {
    QTest::addColumn<QString>("qml");
    QTest::newRow("menu button") << "MenuButton { text: 'A'; menu: Menu { MenuItem { text: 'B' } }";
    QTest::newRow("pop-up picker") << "PopUpPicker { options: [PickerOption { text: 'B' }]";
  }

  void whatOpensAMenuTellsOfIt() {
    QFETCH(QString, qml);
    QAccessible::setActive(true);
    Stage stage(named(qml));
    QAccessibleInterface* node = subject(stage);
    QVERIFY(!node->state().pressed);
    node->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(node->state().pressed);
    stage.press(Qt::Key_Escape);
    QTRY_VERIFY(!node->state().pressed);
  }

  void pressing() {
    QFETCH(QString, qml);
    QFETCH(QString, log);
    QAccessible::setActive(true);
    const Stage stage(named(qml));
    QAccessibleActionInterface* actions = subject(stage)->actionInterface();
    QVERIFY(actions && actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(stage.log(), log);
  }
};

QTEST_MAIN(TestAccessibility)

#include "tst_accessibility.moc"
