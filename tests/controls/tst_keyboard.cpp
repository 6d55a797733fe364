#include "Stage.h"
#include "controls/fields/LongText.h"
#include "controls/theme/Typography.h"
#include "testing/Cases.h"

#include <QAccessible>

using namespace tarnloft;

namespace {

const QString menus = QStringLiteral(R"(
  Button { objectName: 'opener'; text: 'Open'; onClicked: menu.popup(0, 30) }
  Menu {
    id: menu; objectName: 'menu'
    MenuItem { text: 'Duplicate'; onTriggered: log(text) }
    MenuSeparator {}
    MenuTitle { text: 'Move' }
    MenuItem { text: 'Delete'; onTriggered: log(text) }
    Menu { title: 'Background'; objectName: 'background'; MenuItem { text: 'White'; onTriggered: log(text) } MenuItem { text: 'Dark'; onTriggered: log(text) } }
  })");

// Opens the menu of `menus` by keyboard.
void openMenu(Stage& stage) {
  stage.press(Qt::Key_Tab);
  stage.press(Qt::Key_Space);
  QTRY_VERIFY(stage.find("menu")->property("opened").toBool());
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

// Every control by keyboard alone and by assistive technology, and where the focus goes.
class TestKeyboard : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { prepareTypography(); }

  void keysAndAssistiveTechnologyPress() {
    const Cases<QString, QString> cases{
        {"button", "Button { text: 'A'; onClicked: log('clicked')", "clicked"},
        {"checkable button", "Button { text: 'A'; checkable: true; onClicked: log(checked)",
         "true"},
        {"switch", "Switch { accessibleName: 'A'; onToggled: log(checked)", "true"},
        {"check box", "CheckBox { text: 'A'; onToggled: log(checked)", "true"},
        {"row", "ListRow { text: 'A'; onClicked: log('chosen')", "chosen"},
        {"selection mark", "SelectionMark { onClicked: log('marked')", "marked"}};
    cases.check([](const QString& qml, const QString& log) {
      QAccessible::setActive(true);
      for (const int key : {0, int(Qt::Key_Space), int(Qt::Key_Return), int(Qt::Key_Enter)}) {
        Stage stage(named(qml));
        QVERIFY(stage.ready());
        stage.press(Qt::Key_Tab);
        key ? stage.press(key)
            : subject(stage)->actionInterface()->doAction(
                  QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(stage.log(), log);
      }
    });
  }

  void keysDo() {
    using namespace Qt;
    const Cases<QString, QList<int>, QString> cases{
        {"pop-up picker",
         "PopUpPicker { options: [PickerOption { text: 'A' }, PickerOption { text: 'B' }]\n"
         "  onActivated: index => log(index) }",
         QList<int>{Key_Space, Key_Down, Key_Space}, "1"},
        {"menu button",
         "MenuButton { text: 'A'; menu: Menu { MenuItem { text: 'B'; onTriggered: log('B') } } }",
         QList<int>{Key_Return, Key_Down, Key_Return}, "B"},
        {"segmented picker",
         "SegmentedPicker { options: [PickerOption { text: 'A' }, PickerOption { text: 'B' }]\n"
         "  onActivated: index => { log(index); currentIndex = index } }",
         QList<int>{Key_Left, Key_Right, Key_Right, Key_Left}, "1 0"},
        {"slider",
         "Slider { accessibleName: 'A'; stepSize: 0.25; value: 0.5; onMoved: log(value) }",
         QList<int>{Key_Right, Key_Left, Key_Left}, "0.75 0.5 0.25"},
        {"shades",
         "ShadeField { width: 99; hue: 0; saturation: 0.5; brightness: 0.9\n"
         "  onMoved: (s, b) => log(s.toFixed(2) + '/' + b.toFixed(2)) }",
         QList<int>{Key_Right, Key_Up}, "0.51/0.90 0.50/0.91"},
        {"scopes",
         "ScopeBar { options: [PickerOption { text: 'A' }, PickerOption { text: 'B' }]\n"
         "  onActivated: index => log(index) }",
         QList<int>{Key_Space, Key_Tab, Key_Space}, "1"},
        {"divider",
         "SplitView { anchors.fill: parent\n"
         "  Item { SplitView.preferredWidth: 100; SplitView.minimumWidth: 75\n"
         "    onWidthChanged: log(width) }\n"
         "  Item { SplitView.fillWidth: true } }",
         QList<int>{Key_Left, Key_Left, Key_Right}, "100 91"},
        {"search", "SearchField { onTextEdited: log(text || 'cleared') }",
         QList<int>{Key_A, Key_Escape, Key_Escape}, "a cleared"},
        {"text area is left by Tab",
         "Column { TextArea { onEdited: text => log(text) }\n"
         "  Button { enabled: false }\n"
         "  Button { text: 'A'; onClicked: log('clicked') } }",
         QList<int>{Key_A, Key_Tab, Key_Space}, "a clicked"}};
    cases.check([](const QString& qml, const QList<int>& keys, const QString& log) {
      Stage stage(qml);
      QVERIFY(stage.ready());
      stage.press(Key_Tab);
      for (const int key : keys) stage.press(key);
      QTRY_COMPARE(stage.log(), log);
    });
  }

  void partsOfALongTextMakeTheWhole() {
    LongText parts;
    QString whole, edited;
    for (int i = 0; i < 9000; ++i) whole += i % 7 ? QString::number(i) : "😀\n";
    parts.setText(whole);
    connect(&parts, &LongText::edited, [&](const QString& text) { edited = text; });
    connect(&parts, &LongText::partChanged, [&] { parts.edit("not the user's"); });
    QString joined;
    for (int i = 0; i < parts.count(); ++i) {
      parts.setPlace(i);
      QVERIFY(parts.part().size() <= LongText::mostInPart &&
              !parts.part().back().isHighSurrogate());
      joined += parts.part();
    }
    QVERIFY(parts.count() > 4 && joined == whole && edited.isEmpty());
    parts.setPlace(1);
    const QString old = parts.part();
    for (const char* text : {"", "short", "a\nb"}) parts.edit(text);
    QCOMPARE(edited, whole.replace(whole.indexOf(old), old.size(), "a\nb"));
    parts.setPlace(2);  // which divides it anew
    joined.clear();
    for (int i = 0; i < parts.count(); ++i) {
      parts.setPlace(i);
      joined += parts.part();
    }
    QCOMPARE(joined, edited);
  }

  void aFieldNeverStoresACutText() {
    Stage stage(
        "TextField { objectName: 'field'; text: 'x'.repeat(9000); onTextEdited: log(length) }");
    auto* field = stage.find<QQuickItem>("field");
    stage.press(Qt::Key_Tab);
    for (const int key : {Qt::Key_A, Qt::Key_Backspace}) stage.press(key);
    QCOMPARE(stage.log(), "");
    QMetaObject::invokeMethod(field, "clear");
    for (const int key : {Qt::Key_A, Qt::Key_B}) stage.press(key);
    QCOMPARE(stage.log(), "1 2");
  }

  void theRingShowsForTheKeyboardAlone() {
    Stage stage(
        "Row { TextField { objectName: 'field'; focus: true }\n"
        "Button { objectName: 'button'; text: 'A'; onClicked: log('clicked') } }");
    auto* button = stage.find<QQuickItem>("button");
    stage.click(button);
    QCOMPARE(stage.log(), "clicked");
    QVERIFY(!button->property("visualFocus").toBool());
    QCOMPARE(stage.focused(), "field");  // a click leaves the focus where it was
    stage.press(Qt::Key_Tab);
    QVERIFY(button->property("visualFocus").toBool());
  }

  void aDialogAnswersOnce() {
    using namespace Qt;
    const QString cancelling = "cancelIsDefault: true";
    const QString third = "alternativeText: 'Try Again'";
    const Cases<QString, QList<int>, QString> cases{
        {"return confirms", "", QList<int>{Key_Return}, "confirmed"},
        {"escape dismisses", "", QList<int>{Key_Escape}, "dismissed"},
        {"return cancels", cancelling, QList<int>{Key_Return}, "dismissed"},
        {"past cancel", cancelling, QList<int>{Key_Tab, Key_Tab, Key_Space}, "confirmed"},
        {"a third button", third, QList<int>{Key_Tab, Key_Space}, "other"},
        {"past the third", third, QList<int>{Key_Return}, "confirmed"}};
    cases.check([&](const QString& kind, const QList<int>& keys, const QString& log) {
      Stage stage(QString("ConfirmationDialog { objectName: 'dialog'; title: 'Really?'; %1\n"
                          "  onConfirmed: log('confirmed'); onDismissed: log('dismissed')\n"
                          "  onAlternativeChosen: log('other') }")
                      .arg(kind));
      for (const QString& sofar : {log, log + ' ' + log}) {
        QMetaObject::invokeMethod(stage.find("dialog"), "open");
        QTRY_VERIFY(stage.find("dialog")->property("opened").toBool());
        for (const int key : keys) stage.press(key);
        QTRY_COMPARE(stage.log(), sofar);
      }
    });
  }

  void aMenuGoesByArrowsAndLetters() {
    using namespace Qt;
    const Cases<QList<int>, QString> cases{
        {"down", QList<int>{Key_Down, Key_Return}, "Duplicate"},
        {"past what tells", QList<int>{Key_Down, Key_Down, Key_Return}, "Delete"},
        {"second of a letter", QList<int>{Key_D, Key_D, Key_Return}, "Delete"},
        {"tab goes round", QList<int>{Key_Tab, Key_Tab, Key_Tab, Key_Tab, Key_Return}, "Duplicate"},
        {"back by tab", QList<int>{Key_Backtab, Key_Backtab, Key_Return}, "Delete"},
        {"end", QList<int>{Key_End, Key_Up, Key_Return}, "Delete"},
        {"into a menu", QList<int>{Key_B, Key_Right, Key_Down, Key_Return}, "Dark"}};
    cases.check([&](const QList<int>& keys, const QString& log) {
      Stage stage(menus);
      openMenu(stage);
      for (const int key : keys) {
        stage.press(key);
        if (key == Key_Right) QTRY_VERIFY(stage.find("background")->property("opened").toBool());
      }
      QTRY_COMPARE(stage.log(), log);
    });
  }

  void escapeWhileASubMenuFadesClosesItsParent() {
    Stage stage(menus);
    openMenu(stage);
    stage.press(Qt::Key_B);
    stage.press(Qt::Key_Right);
    QTRY_VERIFY(stage.find("background")->property("opened").toBool());
    stage.press(Qt::Key_Escape);
    QVERIFY(stage.find("menu")->property("opened").toBool());
    stage.press(Qt::Key_Escape);
    QVERIFY(!stage.find("menu")->property("opened").toBool());
    QCOMPARE(stage.focused(), "opener");
    QTRY_VERIFY(!stage.find("menu")->property("visible").toBool());
    QCOMPARE(stage.focused(), "opener");
  }

  void aSecondClickClosesTheMenuOfAButton() {
    Stage stage(
        "MenuButton { objectName: 'opener'; text: 'A'\n"
        "  menu: Menu { MenuItem { text: 'B'; onTriggered: log(text) } } }");
    auto* opener = stage.find<QQuickItem>("opener");
    for (const bool open : {true, false, true}) {
      stage.click(opener);
      QTRY_COMPARE(opener->property("open").toBool(), open);
    }
  }

  void aPopoverGivesTheFocusBack() {
    Stage stage(
        "ColorWell { objectName: 'well'; accessibleName: 'Tint'; color: '#336699'\n"
        "  onPicked: color => log(color) }");
    stage.press(Qt::Key_Tab);
    stage.press(Qt::Key_Space);
    QTRY_VERIFY(stage.focused() != "well");
    stage.press(Qt::Key_Right, Qt::ShiftModifier);
    QTRY_VERIFY(!stage.log().isEmpty());
    stage.press(Qt::Key_Escape);
    QTRY_COMPARE(stage.focused(), "well");
  }

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
};

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
