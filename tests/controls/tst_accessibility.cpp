#include "Stage.h"
#include "testing/Cases.h"

#include <QAccessible>
#include <QGuiApplication>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)

using namespace tarnloft;

namespace {

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
  void rolesAndNames() {
    const Cases<QAccessible::Role, QString> cases{
        {"Button { text: 'Create'", QAccessible::Button, "Create"},
        {"Button { symbol: 'trash'; help: 'Delete'", QAccessible::Button, "Delete"},
        {"MenuButton { text: 'Move to…'; menu: Menu {}", QAccessible::ButtonMenu, "Move to…"},
        {"TextField { placeholderText: 'Brand name'", QAccessible::EditableText, "Brand name"},
        {"Switch { accessibleName: 'Show Dock icon'", QAccessible::CheckBox, "Show Dock icon"},
        {"SelectionMark { selected: true", QAccessible::CheckBox, "Deselect"},
        {"Slider { accessibleName: 'Quality'", QAccessible::Slider, "Quality"},
        {"ListRow { text: 'Acme'", QAccessible::ListItem, "Acme"},
        {"PopUpPicker { accessibleName: 'Theme'; options: [PickerOption { text: 'Dark' }]",
         QAccessible::ComboBox, "Theme, Dark"},
        {"ColorWell { accessibleName: 'Tint'; color: '#4c6fff'", QAccessible::Button,
         "Tint, #4C6FFF"},
        {"SegmentedPicker { accessibleName: 'Tile size'", QAccessible::Grouping, "Tile size"},
        {"Toast { message: 'Copied'", QAccessible::AlertMessage, "Copied"}};
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
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
