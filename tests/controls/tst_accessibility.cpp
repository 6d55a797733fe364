#include "Stage.h"
#include "testing/Cases.h"

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
  return qml.replace(qml.indexOf('{'), 1, "{ objectName: 'subject'; ") + " }";
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
        QUrl("qrc:/all.qml"));
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

  void rolesAndNames() {
    const Cases<QAccessible::Role, QString> cases{
        {"Button { text: 'Create'", QAccessible::Button, "Create"},
        {"Button { symbol: 'trash'; help: 'Delete'", QAccessible::Button, "Delete"},
        {"MenuButton { text: 'Move to…'; menu: Menu {}", QAccessible::ButtonMenu, "Move to…"},
        {"TextField { placeholderText: 'Brand name'", QAccessible::EditableText, "Brand name"},
        {"TextArea { accessibleName: 'Note'", QAccessible::EditableText, "Note"},
        {"Switch { accessibleName: 'Show Dock icon'", QAccessible::CheckBox, "Show Dock icon"},
        {"CheckBox { text: 'Colors'", QAccessible::CheckBox, "Colors"},
        {"SelectionMark { selected: true", QAccessible::CheckBox, "Deselect"},
        {"Slider { accessibleName: 'Quality'", QAccessible::Slider, "Quality"},
        {"ListRow { text: 'Acme'", QAccessible::ListItem, "Acme"},
        {"PopUpPicker { accessibleName: 'Theme'; options: [PickerOption { text: 'Dark' }]",
         QAccessible::ComboBox, "Theme, Dark"},
        {"ColorWell { accessibleName: 'Tint'; color: '#4c6fff'", QAccessible::Button,
         "Tint, #4C6FFF"},
        {"SegmentedPicker { accessibleName: 'Tile size'", QAccessible::Grouping, "Tile size"},
        {"Toast { message: 'Copied'", QAccessible::AlertMessage, "Copied"},
        {"Label { text: 'Brands'", QAccessible::StaticText, "Brands"}};
    cases.check([&](const QString& qml, const QAccessible::Role& role, const QString& name) {
      for (const bool before : {true, false}) {  // assistive technology may come later
        QAccessible::setActive(before);
        const Stage stage(named(qml));
        QAccessible::setActive(true);
        QAccessibleInterface* node = subject(stage);
        QVERIFY(node);
        QCOMPARE(node->role(), role);
        QCOMPARE(text(node), name);
      }
    });
  }

  void whatOpensAMenuTellsOfIt() {
    const Cases<QString> cases{
        {"menu button", "MenuButton { text: 'A'; menu: Menu { MenuItem { text: 'B' } }"},
        {"pop-up picker", "PopUpPicker { options: [PickerOption { text: 'B' }]"}};
    cases.check([&](const QString& qml) {
      QAccessible::setActive(true);
      Stage stage(named(qml));
      QAccessibleInterface* node = subject(stage);
      QVERIFY(!node->state().pressed);
      node->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
      QTRY_VERIFY(node->state().pressed);
      stage.press(Qt::Key_Escape);
      QTRY_VERIFY(!node->state().pressed);
    });
  }

  void pressing() {
    const Cases<QString, QString> cases{
        {"button", "Button { text: 'A'; onClicked: log('clicked')", "clicked"},
        {"switch", "Switch { accessibleName: 'A'; onToggled: log(checked)", "true"},
        {"check box", "CheckBox { text: 'A'; onToggled: log(checked)", "true"},
        {"row", "ListRow { text: 'A'; onClicked: log('chosen')", "chosen"},
        {"selection mark", "SelectionMark { onClicked: log('marked')", "marked"}};
    cases.check([&](const QString& qml, const QString& log) {
      QAccessible::setActive(true);
      const Stage stage(named(qml));
      QAccessibleActionInterface* actions = subject(stage)->actionInterface();
      QVERIFY(actions &&
              actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
      actions->doAction(QAccessibleActionInterface::pressAction());
      QCOMPARE(stage.log(), log);
    });
  }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
