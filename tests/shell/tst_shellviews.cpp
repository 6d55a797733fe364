#include "controls/motion/Motion.h"
#include "sheets/emblems/EmblemPicker.h"
#include "shell/TestViews.h"
#include "testing/Cases.h"
#include "testing/DrawnText.h"
#include "workspace/Items.h"

using namespace tarnloft;

// The main window's views, driven by keys and the pointer as a user would.
class TestShellViews : public QObject {
  Q_OBJECT

 private slots:
  void aNewBrandIsNamed() {
    Views views;
    views.start();
    views.click(views.item(button, "Create your first brand"));
    QTRY_VERIFY(views.item(dialog, "New Brand"));
    views.type("  ");
    QVERIFY(!views.item(button, "Create")->isEnabled());
    views.press(Qt::Key_Return);
    QVERIFY(views.item(dialog, "New Brand") && views.library.names().isEmpty());
    views.type("Acme ");
    views.press(Qt::Key_Return);
    QTRY_COMPARE(views.library.names(), QStringList("Acme"));
    QTRY_VERIFY(!views.item(dialog, "New Brand"));
    views.click(views.item(button, "New Brand"));
    QTRY_VERIFY(views.item(QAccessible::EditableText, "Brand name"));
    QCOMPARE(views.item(QAccessible::EditableText, "Brand name")->property("text"), "  Acme ");
  }

  void assistiveTechnologyHearsRowsInTheirOrder() {
    Views views;
    for (const char* name : {"Acme", "Birch"}) {
      views.library.add(name, {Section::create(QString("Logos of ") + name)});
    }
    views.library.add("Cedar", {Section::create("")});
    views.start();
    const auto heard = [&] {
      QStringList names;
      const QAccessibleInterface* list =
          QAccessible::queryAccessibleInterface(views.item(QAccessible::List, "Brands"));
      for (int i = 0; i < list->childCount(); ++i) {
        const QAccessibleInterface* child = list->child(i);
        if (child->role() == row && !child->state().invisible)
          names << child->text(QAccessible::Name);
      }
      return names;
    };
    QTRY_COMPARE(heard(), QStringList({"Acme", "Logos of Acme", "Birch", "Cedar"}));
    views.click(views.item(row, "Birch"));
    QTRY_COMPARE(heard(), QStringList({"Acme", "Birch", "Logos of Birch", "Cedar"}));
    views.press(Qt::Key_Up, Qt::AltModifier);
    QTRY_COMPARE(heard(), QStringList({"Birch", "Logos of Birch", "Acme", "Cedar"}));
    for (int i = 0; i < 3; ++i) views.press(Qt::Key_Down, Qt::AltModifier);
    QTRY_COMPARE(heard(), QStringList({"Acme", "Cedar", "Birch", "Logos of Birch"}));
    views.click(views.item(row, "Cedar"));
    QTRY_COMPARE(heard(), QStringList({"Acme", "Cedar", "Untitled Section", "Birch"}));
  }

  void theKeyboardGoesOnAtTheSelectedBrand() {
    Views views;
    for (const char* name : {"Acme", "Birch", "Cedar"}) {
      views.library.add(name, {Section::create(QString("Logos of ") + name)});
    }
    views.start();
    views.click(views.item(row, "Cedar"));
    QTRY_VERIFY(views.item(row, "Logos of Cedar"));
    views.press(Qt::Key_Delete);
    QTRY_VERIFY(views.item(button, "Move to Trash"));
    views.click(views.item(button, "Move to Trash"));
    QTRY_VERIFY(views.item(row, "Logos of Acme"));
    QCOMPARE(views.library.store->selection(), views.library.packagePath("Acme"));
    const QQuickItem* list = views.item(QAccessible::List, "Brands");
    QTRY_COMPARE(list->property("currentItem").value<QQuickItem*>(), views.item(row, "Acme"));
  }

  void theMenusOfferWhatCanBeDone() {
    Views views;
    views.start();
    views.press(Qt::Key_F10);
    QTRY_VERIFY(views.item(entry, "Import Brand…"));
    QVERIFY(views.item(entry, "Import Brand…")->isEnabled());
    QVERIFY(!views.item(entry, "Export Brand…")->isEnabled());
    QVERIFY(!views.item(entry, "Export Brand Page…")->isEnabled());
    views.press(Qt::Key_Right);
    QTRY_VERIFY(views.item(entry, "Undo"));
    views.press(Qt::Key_Right);
    QTRY_VERIFY(views.item(entry, "Expanded"));
    views.press(Qt::Key_Right);
    QTRY_VERIFY(views.item(entry, "Pick Color from Screen"));
    QVERIFY(!views.item(entry, "Pick Color from Screen")->isEnabled());
    views.press(Qt::Key_Right);
    QTRY_VERIFY(views.item(entry, "About Tarn Loft"));
    const auto place = [&](const char* name) { return views.item(entry, name)->mapToScene({}); };
    QTRY_VERIFY(place("About Tarn Loft") !=
                place("Keyboard Shortcuts"));  // the menu lays itself out
    views.click(views.item(entry, "About Tarn Loft"));
    QTRY_VERIFY(views.item(dialog, "About Tarn Loft"));
    QTRY_VERIFY(views.item(row, QString("Qt %1, LGPL 3").arg(QT_VERSION_STR)));
    views.press(Qt::Key_Escape);
    QTRY_VERIFY(!views.item(dialog, "About Tarn Loft"));
    views.press(Qt::Key_Question, Qt::ControlModifier);
    QTRY_VERIFY(views.item(row, "Import Brand…, Ctrl+Shift+I"));
  }

  void theViewMenuShowsAndChangesHowThingsAre() {
    Views views;
    views.start();
    LibraryPreferences& preferences = views.library.store->preferences();
    const auto open = [&] {
      views.press(Qt::Key_V, Qt::AltModifier);
      QTRY_VERIFY(views.item(entry, "Expanded"));
      (void)views.window().grabWindow();  // the entries have their places then
    };
    const auto isChecked = [&](const char* name) {
      return QAccessible::queryAccessibleInterface(views.item(entry, name))->state().checked;
    };
    open();
    QVERIFY(isChecked("Compact") && !isChecked("Expanded") && isChecked("Medium"));
    QVERIFY(views.item(entry, "Large")->isEnabled());
    preferences.setTileSize(TileSize::small);  // from elsewhere
    QVERIFY(isChecked("Small") && !isChecked("Medium"));
    views.click(views.item(entry, "Expanded"));
    QTRY_COMPARE(preferences.assetDisplayMode(), AssetDisplayMode::expanded);
    QTRY_VERIFY(!views.item(entry, "Expanded"));
    open();
    QVERIFY(isChecked("Expanded") && !isChecked("Compact"));
    QVERIFY(!views.item(entry, "Large")->isEnabled());
    views.click(views.item(entry, "Expanded"));  // once more, which changes nothing
    QTRY_VERIFY(!views.item(entry, "Expanded"));
    open();
    QVERIFY(isChecked("Expanded"));
    views.click(views.item(entry, "Dark"));
    QTRY_COMPARE(preferences.appearanceMode(), AppearanceMode::dark);
  }

  // Opened by keys and by the pointer.
  void theEditMenuWorksOnWhatHasTheKeyboard() {
    const Cases<bool> cases{{"keys", true}, {"pointer", false}};
    cases.check([](bool byKeys) {
      Views views;
      views.library.add("Acme", {sectionOf("Colors", {colorItem("Sea"), colorItem("Sand")})});
      views.start();
      QTRY_VERIFY(views.item(row, "Sea"));
      const auto choose = [&](const char* name) {
        if (byKeys) {
          views.press(Qt::Key_E, Qt::AltModifier);
        } else {
          views.click(views.item(entry, "Edit"));
        }
        QTRY_VERIFY(views.item(entry, name));
        QVERIFY2(views.item(entry, name)->isEnabled(), name);
        views.click(views.item(entry, name));
        QTRY_VERIFY(!views.item(entry, name));
      };
      QQuickItem* const field = views.item(QAccessible::EditableText, "Section name");
      QVERIFY(field);
      field->forceActiveFocus(Qt::MouseFocusReason);
      choose("Select All");
      QTRY_COMPARE(field->property("selectedText"), "Colors");
      choose("Copy");
      choose("Delete");
      QTRY_COMPARE(field->property("text"), "");
      choose("Paste");
      QTRY_COMPARE(field->property("text"), "Colors");
      QVERIFY(field->hasActiveFocus());

      views.click(views.item(row, "Sand"));
      views.pasteboard.texts.clear();
      choose("Copy");
      QTRY_COMPARE(views.pasteboard.texts.size(), 1);
      choose("Select All");
      const auto& selection =
          *views.window().property("content").value<ContentModel*>()->selection();
      QTRY_COMPARE(selection.count(), 2);
      choose("Delete");
      QTRY_VERIFY(!views.item(row, "Sand"));
      choose("Undo Delete");
      QTRY_VERIFY(views.item(row, "Sand"));
    });
  }

  void theMenuOfABrandHasItsEntries() {
    Views views;
    views.start({"Acme"});
    views.click(views.item(row, "Acme"), Qt::RightButton);
    for (const char* text : {"Rename…", "Duplicate", "Export Brand Page…", "Export Brand File…",
                             "Show in File Manager", "Move to Trash"}) {
      QTRY_VERIFY2(views.item(entry, text), text);
    }
    views.click(views.item(entry, "Show in File Manager"));
    QTRY_COMPARE(views.library.viewer.revealed, QStringList(views.library.packagePath("Acme")));
    views.click(views.item(row, "Acme"));
    views.press(Qt::Key_Menu);
    QTRY_VERIFY(views.item(entry, "Duplicate"));

    // It has gone by the time that a dialog opens, also where nothing moves.
    Motion::of(views.engine).setReduced(true);
    std::optional<bool> isOpen;
    views.library.dialogs.whileSaving = [&] {
      QTest::qWait(200);
      isOpen = views.item(entry, "Duplicate");
    };
    views.click(views.item(entry, "Export Brand Page…"));
    QTRY_VERIFY(isOpen);
    QVERIFY(!*isOpen);
  }

  void shortcutsWaitBehindASheet() {
    Views views;
    views.start({"Acme"});
    views.press(Qt::Key_N, Qt::ControlModifier);
    QTRY_VERIFY(views.item(dialog, "New Brand"));
    views.press(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(views.library.dialogs.openTypes.isEmpty());
    views.press(Qt::Key_Escape);
    QTRY_VERIFY(!views.item(dialog, "New Brand"));
    views.press(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!views.library.dialogs.openTypes.isEmpty());
  }

  // Pressed, pulled and let go. A quick click that slips leaves it open.
  void aMenuIsUsedByOnePress() {
    Views views;
    views.library.add("Acme", {sectionOf("Colors", {colorItem("Sky", "#aabbcc")})});
    views.start();
    Motion::of(views.engine).setReduced(true);
    QTRY_VERIFY(views.item(row, "Sky"));
    const QPoint tile = Views::centerOf(views.item(row, "Sky"));
    const auto pull = [&](int held) {
      QTest::mousePress(&views.window(), Qt::RightButton, {}, tile);
      QTRY_VERIFY(views.item(entry, "Duplicate"));
      QTest::qWait(held);
      const QPoint to = Views::centerOf(views.item(entry, "Duplicate"));
      for (const QPoint& at : {to - QPoint(0, 4), to}) QTest::mouseMove(&views.window(), at);
      QTest::mouseRelease(&views.window(), Qt::RightButton, {}, to);
    };
    pull(0);
    QVERIFY(views.item(entry, "Duplicate"));
    views.press(Qt::Key_Escape);
    QTRY_VERIFY(!views.item(entry, "Duplicate"));
    pull(300);
    QTRY_VERIFY(!views.item(entry, "Duplicate"));
    QCOMPARE(views.library.store->openDocument()->brand().sections.first().items.size(), 2);
  }

  // One picture shows the symbols; the pointer, the keys and assistive technology agree on it.
  void aSymbolIsChosenInEachWay() {
    Views views;
    views.library.add("Acme", {colorSection("Colors", 60)});
    views.start();
    Motion::of(views.engine).setReduced(true);
    auto& content = *views.window().property("content").value<ContentModel*>();
    content.workspace()->sections()->models().front()->editEmblem();
    QTRY_VERIFY(views.window().activeFocusItem()->inherits("QQuickTextField"));
    auto& picker = *qobject_cast<EmblemPicker*>(content.sheets()->current());
    const QAccessibleInterface* const list =
        QAccessible::queryAccessibleInterface(views.item(QAccessible::List, "Symbols"));
    QCOMPARE(list->childCount(), 262);
    QVERIFY(list->parent()->indexOfChild(list) >= 0);
    const auto middle = [&](int place) { return list->child(place)->rect().center(); };
    const auto isDrawn = [&](int place) {  // in the middle of where it is said to be
      const QRect rect = list->child(place)->rect().translated(-views.window().position());
      const QRect ink = inkOf(views.window().grabWindow().copy(rect));
      const QPoint off = ink.center() - QRect(QPoint(), rect.size()).center();
      return ink.width() > 8 && off.manhattanLength() < 6;
    };
    const auto chosen = [&] {
      for (int place = 0; place < list->childCount(); ++place)
        if (list->child(place)->state().checked) return place;
      return -1;
    };
    QTest::mouseClick(&views.window(), Qt::LeftButton, {}, middle(12) - views.window().position());
    QCOMPARE(chosen(), 12);
    QCOMPARE(picker.symbol(), picker.symbols().at(12));
    QVERIFY(isDrawn(0) && isDrawn(13) &&
            list->childAt(middle(13).x(), middle(13).y()) == list->child(13));
    // What is pressed and pulled isn't a tile under the sheet.
    for (const QPoint from :
         {Views::centerOf(views.item(button, "Done")), middle(36) - views.window().position()}) {
      QTest::mousePress(&views.window(), Qt::LeftButton, {}, from);
      for (const int by : {8, 16, 24}) QTest::mouseMove(&views.window(), from + QPoint(by, by));
      QTest::qWait(100);
      QTest::mouseRelease(&views.window(), Qt::LeftButton, {}, from + QPoint(24, 24));
    }
    QVERIFY(views.drags.items.isEmpty() && views.pasteboard.texts.isEmpty());
    views.press(Qt::Key_Right);
    QCOMPARE(chosen(), 13);
    QCOMPARE(list->focusChild(), list->child(13));
    QVERIFY(list->child(200)->state().offscreen);
    list->child(200)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(picker.symbol(), picker.symbols().at(200));
    QVERIFY(!list->child(200)->state().offscreen && isDrawn(199));
    views.type("carrot");
    QVERIFY(list->childCount() == 1 && !list->child(1));
    QCOMPARE(list->child(0)->text(QAccessible::Name), QString("carrot"));
    views.press(Qt::Key_Down);
    views.press(Qt::Key_Escape);
    QTRY_VERIFY(!content.sheets()->current());
  }

  void aNarrowWindowFoldsItsSidebar() {
    Views views;
    views.library.add("Acme", {sectionOf("Colors", {colorItem("Sea")})});
    views.start({"Birch"});
    const double width = views.window().property("sidebarWidth").toDouble();
    QVERIFY(!views.item(button, "Show Sidebar"));
    views.narrow();
    QTRY_VERIFY(views.item(button, "Show Sidebar"));
    QVERIFY(!views.item(row, "Acme"));
    QCOMPARE(views.window().property("sidebarWidth").toDouble(), width);  // which is kept
    const auto tabTo = [&](const QQuickItem* item) {
      for (int tabs = 0; tabs < 20 && !item->hasActiveFocus(); ++tabs) views.press(Qt::Key_Tab);
    };
    tabTo(views.item(button, "Show Sidebar"));
    views.press(Qt::Key_Space);
    QTRY_VERIFY(views.item(row, "Acme"));
    views.press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(views.window().property("content").value<ContentModel*>()->selection()->count(), 1);
    views.press(Qt::Key_Escape);
    QTRY_VERIFY(!views.item(row, "Acme"));
    QVERIFY(views.item(button, "Show Sidebar")->hasActiveFocus());
    // A choice, a press beside it and the Tab key's way back to the page each end it.
    const auto open = [&] {
      views.click(views.item(button, "Show Sidebar"));
      QTRY_COMPARE(Views::left(views.item(row, "Birch")), 0);
    };
    open();
    views.click(views.item(row, "Birch"));
    QTRY_VERIFY(!views.item(row, "Birch"));
    QCOMPARE(views.library.store->selection(), views.library.packagePath("Birch"));
    open();
    QTest::mouseClick(&views.window(), Qt::LeftButton, {}, {450, 300});
    QTRY_VERIFY(!views.item(row, "Birch"));
    open();
    tabTo(views.item(button, "Show Sidebar"));
    QTRY_VERIFY(!views.item(row, "Birch"));
    open();
    views.window().resize(900, 600);
    QTRY_VERIFY(!views.item(button, "Show Sidebar"));
    QCOMPARE(Views::left(views.item(row, "Birch")), 0);
    QCOMPARE(views.window().property("sidebarWidth").toDouble(), width);
  }

  void thePageHasTheEditMenusKeys() {
    Views views;
    views.library.add("Acme", {sectionOf("A", {colorItem("a"), colorItem("b")})});
    views.start();
    QTRY_VERIFY(views.item(row, "a"));
    const auto items = [&] {
      return views.library.store->openDocument()->brand().sections.first().items.size();
    };
    QTest::mouseClick(&views.window(), Qt::LeftButton, Qt::ControlModifier,
                      Views::centerOf(views.item(row, "a")));
    views.press(Qt::Key_Backspace);
    QCOMPARE(items(), 1);
    views.press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_VERIFY(views.item(row, "a"));
    views.press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(views.window().activeFocusItem()->inherits("QQuickTextField"));
    views.press(Qt::Key_A, Qt::ControlModifier);  // the field's
    views.press(Qt::Key_Delete);
    QCOMPARE(items(), 2);
  }

  void aFoldedSidebarHasTheMenus() {
    Views views;
    views.start({"Acme"});
    views.narrow();
    QTRY_VERIFY(views.item(button, "Show Sidebar"));
    views.press(Qt::Key_F10);
    QTRY_VERIFY(views.item(entry, "Import Brand…"));
    QVERIFY(views.item(row, "Acme"));
    views.press(Qt::Key_Escape);
    QTRY_VERIFY(!views.item(entry, "Import Brand…"));
    views.press(Qt::Key_Escape);
    QTRY_VERIFY(!views.item(row, "Acme"));
    views.press(Qt::Key_N, Qt::ControlModifier);  // a command of a menu that is folded away
    QTRY_VERIFY(views.item(dialog, "New Brand"));
  }
};

QTEST_MAIN(TestShellViews)
#include "tst_shellviews.moc"
