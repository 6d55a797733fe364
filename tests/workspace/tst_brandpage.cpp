#include "testing/Cases.h"
#include "workspace/Items.h"
#include "workspace/TestPage.h"
#include "workspace/page/SectionColumn.h"

#include <QStyleHints>

using namespace tarnloft;

namespace {

constexpr int patience = 20'000;  // ms; a busy machine is no failure

QMimeData* files(const QStringList& paths) {
  auto* data = new QMimeData;
  QList<QUrl> urls;
  for (const QString& path : paths) urls << QUrl::fromLocalFile(path);
  data->setUrls(urls);
  return data;
}

// A drag that another program or the page itself began, by hand.
class HandDrag {
 public:
  HandDrag(QQuickView& view, QMimeData* data) : view_(view), data_(data) {}

  bool hover(const QPoint& at) {
    if (!isInside_) {
      QDragEnterEvent enter(at, Qt::CopyAction, data_.get(), Qt::LeftButton, {});
      QCoreApplication::sendEvent(&view_, &enter);
    }
    isInside_ = true;
    QDragMoveEvent move(at, Qt::CopyAction, data_.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view_, &move);
    return move.isAccepted();
  }
  bool drop(const QPoint& at) {
    (void)hover(at);
    QDropEvent event(at, Qt::CopyAction, data_.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view_, &event);
    return event.isAccepted();
  }
  void leave() {
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(&view_, &event);
  }

 private:
  QQuickView& view_;
  std::unique_ptr<QMimeData> data_;
  bool isInside_ = false;
};

// Everything that assistive technology finds in the window, in order.
void collect(QAccessibleInterface* node, QList<QAccessibleInterface*>& found) {
  for (int i = 0; i < node->childCount(); ++i) {
    QAccessibleInterface* child = node->child(i);
    if (!child || child->state().invisible) continue;
    found << child;
    collect(child, found);
  }
}

QList<QAccessibleInterface*> accessibles(TestPage& page) {
  QList<QAccessibleInterface*> found;
  collect(QAccessible::queryAccessibleInterface(&page.view), found);
  return found;
}

QAccessibleInterface* accessible(TestPage& page, QAccessible::Role role, const QString& name) {
  for (QAccessibleInterface* one : accessibles(page)) {
    if (one->role() == role && one->text(QAccessible::Name) == name) return one;
  }
  return nullptr;
}

// Whether that text is in sight somewhere in the item.
bool shows(const QQuickItem* item, const QString& text) {
  if (!item->isVisible()) return false;
  if (item->inherits("QQuickText") && item->property("text") == text) return true;
  const auto children = item->childItems();
  return std::any_of(children.begin(), children.end(),
                     [&](const QQuickItem* child) { return shows(child, text); });
}

QString copied(const TestPage& page) { return page.pasteboard.texts.join('|'); }

QString selectedNames(TestPage& page) {
  QString names;
  for (const Section& section : page.document().brand().sections) {
    for (const Item& item : section.items) {
      if (page.selection.contains(item.id, section.id)) names += item.displayName();
    }
  }
  return names;
}

QMimeData* ownDrag(TestPage& page, const QString& name) {
  QQuickItem* tile = page.tileNamed(name);
  TestPage::tileOf(tile)->drag(tile);
  return new DragData(page.drags.items);
}

}  // namespace

class TestBrandPage : public QObject {
  Q_OBJECT

 private slots:
  void aSecondClickOnAVideoPlaysIt() {
    const Item video = Item::create(VideoPayload{{"0.mp4", "a.mp4"}, "Spot"});
    TestPage page({sectionOf("A", {video, colorItem("red", "#ff0000")})});
    const auto click = [&](const char* name, Qt::KeyboardModifiers modifiers = {}) {
      QTest::mouseDClick(&page.view, Qt::LeftButton, modifiers, page.middleOf(name));
      return page.sheets.current() != nullptr;
    };
    page.click("Spot");
    QVERIFY(!page.sheets.current());
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 1);
    QVERIFY(!click("red"));
    QVERIFY(!click("Spot", Qt::ControlModifier));
    page.selection.toggle(video.id, page.section(0).id());
    QVERIFY(click("Spot"));
    QVERIFY(page.clips.path.endsWith("/assets/0.mp4"));
    QCOMPARE(page.selection.count(), 0);
  }

  void aDragThatTakesTheReleaseAwayIsTheLastOfItsTile() {
    TestPage page({sectionOf("A", {colorItem("a", "#ff0000"), colorItem("b", "#00ff00")})});
    QList<QByteArray> dragged;
    bool isTaken = false;
    page.drags.during = [&] {
      dragged << page.drags.items.first().payload->bytes;
      isTaken = true;
    };
    for (const char* name : {"a", "b", "a"}) {
      const QPoint tile = page.middleOf(name);
      isTaken = false;
      page.padDrag(Qt::LeftButton, tile, tile + QPoint(40, 20), &isTaken);
      QVERIFY(isTaken);
    }
    QCOMPARE(dragged.size(), 3);
    QVERIFY(dragged[0] == dragged[2] && dragged[0] != dragged[1]);
    page.padDrag(Qt::LeftButton, page.middleOf("b"));
    QCOMPARE(copied(page), "#00FF00");
  }

  // GNOME and Plasma report any mouse so.
  void aMouseTakenForATouchpadIsAMouse() {
    TestPage page({sectionOf("A", {colorItem("a", "#ff0000"), textItem("calm")})});
    const QPoint tile = page.middleOf("a");
    const auto* const shown = page.tileNamed("a")->property("tile").value<Tile*>();
    for (const QPoint& to : {tile, tile + QPoint(40, 20)}) {
      page.padDrag(Qt::MiddleButton, tile, to);
      QCOMPARE(copied(page), "");
      QVERIFY(page.drags.items.isEmpty());
    }
    page.padDrag(Qt::LeftButton, tile, tile);
    QCOMPARE(copied(page), "#FF0000");
    const QPoint box = page.tileNamed("a")->mapToScene({16, 16}).toPoint();
    QTest::mouseMove(&page.view, box);
    page.settle();
    page.padDrag(Qt::LeftButton, box, box);
    QCOMPARE(selectedNames(page), "a");
    QCOMPARE(copied(page), "#FF0000");
    page.padDrag(Qt::LeftButton, tile, tile + QPoint(40, 20));
    QCOMPARE(page.drags.items.size(), 1);
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    QTest::touchEvent(&page.view, screen.get()).press(1, tile, &page.view);
    QTest::touchEvent(&page.view, screen.get()).release(1, tile, &page.view);
    QCOMPARE(page.pasteboard.texts.size(), 2);  // a finger's tap still counts
    page.padDrag(Qt::RightButton, tile);
    QVERIFY(shown->isMenuOpen());
    QCOMPARE(page.pasteboard.texts.size(), 2);
    page.key(Qt::Key_Escape);
    QTest::qWait(300);  // it fades
    page.padDrag(Qt::RightButton, page.tileNamed("calm")->mapToScene({300, 8}).toPoint());
    QVERIFY(!page.tileNamed("calm")->hasActiveFocus());
  }

  void theCheckBoxSelects() {
    TestPage page(
        {sectionOf("A", {colorItem("a"), colorItem("b")}), sectionOf("B", {colorItem("x")})});
    const auto boxes = [&] {
      QStringList names;
      for (QAccessibleInterface* one : accessibles(page)) {
        if (one->role() == QAccessible::CheckBox) names << one->text(QAccessible::Name);
      }
      return names;
    };
    QCOMPARE(accessible(page, QAccessible::ListItem, "a")->text(QAccessible::Description),
             "Color, a, hex #123456");
    QCOMPARE(boxes(), QStringList());
    QTest::mouseMove(&page.view, page.middleOf("a"));
    QTRY_COMPARE(boxes(), QStringList{"Select"});
    const QPoint box = page.tileNamed("a")->mapToScene({16, 16}).toPoint();
    QTest::mouseMove(&page.view, box);
    QTest::mouseClick(&page.view, Qt::LeftButton, {}, box);
    QCOMPARE(selectedNames(page), "a");
    QCOMPARE(copied(page), "");
    page.settle();
    QCOMPARE(boxes(), (QStringList{"Deselect", "Select"}));  // on all of the section, and no other
  }

  void aClickOnTheGroundEndsSelectionAndEditing() {
    TestPage page({sectionOf("A", {colorItem("a"), colorItem("b")})});
    const auto click = [&](const QPoint& at) {
      QTest::mouseClick(&page.view, Qt::LeftButton, {}, at);
    };
    const QPoint behindTheTiles = page.middleOf("b") + QPoint(300, 0);
    for (const QPoint& at : {behindTheTiles, QPoint(500, 20), QPoint(500, 700)}) {
      page.click("a", Qt::ControlModifier);
      QCOMPARE(selectedNames(page), "a");
      click(at);
      QCOMPARE(selectedNames(page), "");
      click({60, 76});  // the section's name
      QVERIFY(page.view.activeFocusItem()->inherits("QQuickTextField"));
      click(at);
      QVERIFY(!page.view.activeFocusItem()->inherits("QQuickTextField"));
    }
    page.click("a", Qt::ControlModifier);
    click({60, 76});
    QCOMPARE(selectedNames(page), "a");  // a name is no ground
  }

  void aWidePageKeepsLinesShortAndToolsNear() {
    TestPage page({sectionOf("A", {textItem(QString("word ").repeated(400)), colorItem("a")})});
    page.view.resize(2400, 760);
    page.settle();
    const QAccessibleInterface* text = accessible(page, QAccessible::EditableText, "Text");
    QCOMPARE(text->rect().width(), 680);
    const auto* title = accessible(page, QAccessible::Heading, "Acme");
    const auto* tools = accessible(page, QAccessible::ButtonMenu, "Section options");
    QVERIFY(tools->rect().right() - title->rect().left() <= 1210);
    page.view.resize(700, 760);
    page.settle();
    QVERIFY(text->rect().right() < tools->rect().right() && tools->rect().right() < 700);
  }

  void hoveringTellsWhatAClickDoes() {
    TestPage page({sectionOf("A", {colorItem("a", "#ff0000"), imageItem("b")})});
    const auto tells = [&](const QString& text) { return shows(page.view.contentItem(), text); };
    const QPoint hint =
        page.tileNamed("a")->mapToScene({125, 80}).toPoint();  // of its card's corner
    const QImage before = page.view.grabWindow();
    QTest::mouseMove(&page.view, page.middleOf("a"));
    QTRY_VERIFY(page.view.grabWindow().pixelColor(hint) != before.pixelColor(hint));
    QTRY_VERIFY_WITH_TIMEOUT(tells("Click to copy #FF0000"), patience);
    QTest::mouseMove(&page.view, page.middleOf("b"));
    QTRY_VERIFY_WITH_TIMEOUT(!tells("Click to copy #FF0000"), patience);
  }

  void keysSelectAndClear() {
    TestPage page({sectionOf("A", {textItem("t"), colorItem("a"), colorItem("b")}),
                   sectionOf("B", {colorItem("x")})});
    page.workspace->selected()->selectAll();
    QCOMPARE(selectedNames(page), "ab");
    page.key(Qt::Key_Escape);
    QCOMPARE(selectedNames(page), "");
    page.click("a", Qt::ControlModifier);
    page.click("b", Qt::ShiftModifier);
    QCOMPARE(selectedNames(page), "ab");
    QCOMPARE(copied(page), "");
    page.key(Qt::Key_Escape);
    page.click("a", Qt::ControlModifier);
    page.key(Qt::Key_Right);
    page.key(Qt::Key_Space, Qt::ShiftModifier);
    QCOMPARE(selectedNames(page), "ab");
    page.key(Qt::Key_Space, Qt::ControlModifier);
    page.key(Qt::Key_Left);
    QCOMPARE(page.focused(), "a");
    page.workspace->selected()->remove();
    QCOMPARE(page.names(0), (QStringList{"t", "b"}));
    QTRY_VERIFY(!page.tileNamed("a"));
    QCOMPARE(page.focused(), "b");
    QCOMPARE(page.toasts.message(), "Deleted 1 item · ⌘Z to undo");
    page.undo.undo();
    QCOMPARE(page.names(0).size(), 3);
  }

  void tabAndArrowsLeadThroughTiles() {
    Section section = colorSection("A", 100);
    section.items.insert(0, headerItem("Heading"));
    TestPage page({section, sectionOf("B", {colorItem("x")})});
    const auto steps = [&](std::initializer_list<int> keys) {
      for (const int key : keys) page.key(key);
      return page.focused();
    };
    QString found;
    for (int tabs = 0; tabs < 15 && found.isEmpty(); ++tabs) found = steps({Qt::Key_Tab});
    QCOMPARE(found, "0");
    QCOMPARE(steps({Qt::Key_Right, Qt::Key_Right}), "2");
    QCOMPARE(steps({Qt::Key_Down, Qt::Key_Left}), "7");
    QCOMPARE(steps({Qt::Key_Up, Qt::Key_Up}), "1");
    QCOMPARE(steps({Qt::Key_End}), "99");
    QQuickItem* last = page.tileNamed("99");
    const double y = last->mapToItem(page.scroll(), QPointF()).y();
    QVERIFY(y >= 0 && y + last->height() <= page.scroll()->height());
    QCOMPARE(steps({Qt::Key_Home}), "0");
    page.settle();
    QVERIFY(steps({Qt::Key_Backtab}).isEmpty());  // the heading, behind which stands its button
    QCOMPARE(steps({Qt::Key_Tab, Qt::Key_Tab}), "0");
    page.workspace->selected()->selectAll();  // each tile shows a check box, which is no stop
    int tabs = 0;
    while (tabs < 10 && page.focused() != "x") {
      page.settle();
      (void)steps({Qt::Key_Tab});
      ++tabs;
    }
    QCOMPARE(tabs, 5);  // over the next section's header
  }

  void blocksAreEditedInPlace() {
    TestPage page({sectionOf("A", {textItem("calm"), headerItem("Voice", 2)})});
    const auto typeInto = [&](const QString& name) {
      const QQuickItem* row = page.tileNamed(name);
      QTest::mouseClick(&page.view, Qt::LeftButton, {},
                        row->mapToScene({5, row->height() - 8}).toPoint());
      page.key(Qt::Key_End);
      QTest::keyClick(&page.view, '!');
    };
    typeInto("calm");
    QCOMPARE(page.names(0).first(), "calm!");
    page.key(Qt::Key_Return);
    QTest::keyClick(&page.view, 'x');
    page.settle();
    QCOMPARE(page.names(0).first(), "calm!\nx");
    typeInto("Voice");
    QVERIFY(page.stored(0).items.at(1).payload == ItemPayload(HeaderPayload{"Voice!", 2}));
    QTest::mouseClick(&page.view, Qt::LeftButton, {},
                      page.tileNamed("calm!\nx")->mapToScene({400, 8}).toPoint());
    page.key(Qt::Key_Tab);
    page.key(Qt::Key_Space);  // its button
    QCOMPARE(page.names(0), QStringList{"Voice!"});
  }

  void aRowOfTextIsDraggedBesideItsText() {
    const Cases<QPoint, bool> cases{{"by its grip", QPoint(-12, 20), true},
                                    {"behind its text", QPoint(300, 20), true},
                                    {"not in its text", QPoint(10, 20), false}};
    cases.check([&](const QPoint& at, bool drags) {
      TestPage page({sectionOf("A", {headerItem("Heading"), colorItem("b")})});
      const QPoint from = page.tileNamed("Heading")->mapToScene(at).toPoint();
      QTest::mousePress(&page.view, Qt::LeftButton, {}, from);
      for (int step = 1; step <= 8; ++step) {
        QTest::mouseMove(&page.view, from + QPoint(4 * step, 0));
        page.settle();
      }
      QTest::mouseRelease(&page.view, Qt::LeftButton, {}, from + QPoint(32, 0));
      QCOMPARE(page.drags.items.size() == 1, drags);
      if (!page.drags.items.isEmpty()) {
        QVERIFY(page.drags.items.first().payload && !page.drags.items.first().file);
        QVERIFY(page.drags.picture.width() > 36 &&
                page.drags.picture.width() < 120);  // of the text
      }
    });
  }

  void tilesTakeItemsAndSectionsAllElse() {
    TestPage page({sectionOf("A", {headerItem("h"), colorItem("a"), colorItem("b")}),
                   sectionOf("B", {colorItem("x")})});
    HandDrag own(page.view, ownDrag(page, "b"));  // a block takes them too
    QVERIFY(own.drop(page.tileNamed("h")->mapToScene({400, 5}).toPoint()));
    QTRY_COMPARE(page.names(0), (QStringList{"b", "h", "a"}));
    page.settle();

    const QString path = page.library.disk.path("Hero.png");
    QVERIFY(writeFile(path, "p"));
    HandDrag foreign(page.view, files({path}));
    QVERIFY(foreign.hover(page.middleOf("x")));
    QVERIFY(!page.tileNamed("x")->findChild<DropTarget*>()->isTargeted());
    QVERIFY(!foreign.hover({500, 20}));  // the title
    foreign.leave();
    QVERIFY(foreign.drop(page.middleOf("x")));
    QTRY_COMPARE(page.names(1), (QStringList{"x", "Hero"}));
  }

  void aDropAtTheEndDoesNotScroll() {
    TestPage page({colorSection("A", 60), sectionOf("B", {})});
    const double end = page.scrollToEnd();
    QVERIFY(end > 0);
    page.document().addItem(colorItem("new"), page.stored(1).id);
    page.settle();
    QVERIFY(page.tileNamed("new"));
    QCOMPARE(page.scrolled(), end);
  }

  void aDragAtTheEdgeScrolls() {
    TestPage page({colorSection("A", 200)});
    HandDrag drag(page.view, ownDrag(page, "0"));
    (void)drag.hover({500, 400});
    QTest::qWait(100);
    QCOMPARE(page.scrolled(), 0);
    (void)drag.hover({500, 755});
    QTRY_VERIFY(page.scrolled() > 100);
    for (const int y : {70, 20}) {  // near the title and on it
      (void)drag.hover({500, y});
      QTRY_COMPARE(page.scrolled(), 0);
      (void)drag.hover({500, 755});
      QTRY_VERIFY(page.scrolled() > 100);
    }
    drag.leave();
    const double left = page.scrolled();
    QTest::qWait(100);
    QCOMPARE(page.scrolled(), left);
  }

  void theTargetIsWhatScrollsUnderADrag() {
    TestPage page({colorSection("A", 200)});
    const auto isTargeted = [&](const QString& name) {
      return page.tileNamed(name)->findChild<DropTarget*>()->isTargeted();
    };
    HandDrag drag(page.view, ownDrag(page, "0"));
    (void)drag.hover(page.middleOf("13"));
    QVERIFY(isTargeted("13"));
    const double row = page.tileNamed("19")->y() - page.tileNamed("13")->y();
    page.scroll()->setProperty("contentY", row);
    QTRY_VERIFY(isTargeted("19"));
    QVERIFY(!isTargeted("13"));
    QVERIFY(drag.drop(page.middleOf("19")));
    QTRY_COMPARE(page.names(0).indexOf("0"), 18);
  }

  void theSearchIsUsedByKeyboard() {
    TestPage page({sectionOf("A", {colorItem("Sea"), colorItem("Sand")}),
                   sectionOf("B", {colorItem("Stone")})});
    const auto type = [&](const char* text) {
      for (; *text; ++text) QTest::keyClick(&page.view, *text);
      page.settle();
    };
    emit page.workspace->searchRequested();
    type("sea");
    QTRY_VERIFY(page.tileNamed("Sea") && !page.tileNamed("Sand"));
    QVERIFY(accessible(page, QAccessible::Grouping, "A"));
    QVERIFY(!accessible(page, QAccessible::Grouping, "B"));
    page.key(Qt::Key_Down);
    QCOMPARE(page.focused(), "Sea");
    emit page.workspace->searchRequested();
    type("zzz");  // in place of what stood there
    QVERIFY(shows(page.view.contentItem(), "No matches for “zzz”"));
    page.key(Qt::Key_Escape);
    page.settle();
    QVERIFY(page.tileNamed("Stone"));
    page.key(Qt::Key_Escape);
    QVERIFY(!page.view.activeFocusItem()->inherits("QQuickTextField"));

    emit page.workspace->searchRequested();
    page.settle();
    type("st");
    page.key(Qt::Key_Tab);
    page.key(Qt::Key_Tab);
    page.key(Qt::Key_Tab);
    page.key(Qt::Key_Space);
    page.settle();
    QVERIFY(page.workspace->search()->isGlobal());
    QVERIFY(accessible(page, QAccessible::ListItem, "Stone, Color · in B"));
    emit page.workspace->searchRequested();
    page.key(Qt::Key_Down);
    page.key(Qt::Key_Return);
    QVERIFY(!page.workspace->search()->isGlobal());
    page.settle();
    QVERIFY(page.tileNamed("Sea"));
  }

  void theTitleIsEdited() {
    TestPage page({sectionOf("A", {colorItem("a")})});
    const auto edit = [&](auto begin, Qt::Key end) {
      begin();
      for (const char letter : {' ', 'N', ' '}) QTest::keyClick(&page.view, letter);
      page.key(end);
      page.settle();
      return page.document().brand().name;
    };
    const auto byKey = [&] { page.key(Qt::Key_F2); };
    const auto byPointer = [&] { QTest::mouseDClick(&page.view, Qt::LeftButton, {}, {40, 30}); };
    page.click("a", Qt::ControlModifier);
    const auto isFocused = [&](const QString& name) {
      return accessible(page, QAccessible::Button, "Rename “" + name + "”")->state().focused;
    };
    while (!isFocused("Acme")) page.key(Qt::Key_Tab);
    QCOMPARE(edit(byKey, Qt::Key_Escape), "Acme");
    QCOMPARE(selectedNames(page), "a");  // that was the field's
    QCOMPARE(edit(byKey, Qt::Key_Return), "N");
    QVERIFY(isFocused("N"));
    page.document().edit([](Brand& brand) { brand.name = "Acme"; });
    page.settle();
    QCOMPARE(edit(byPointer, Qt::Key_Tab), "N");
  }

  void aPictureThatLeadsOutOfThePackageTellsSo() {
    TestPage page({sectionOf("A", {imageItem("a", "../a.png")})});
    QTRY_VERIFY(accessible(page, QAccessible::StaticText, "Couldn't load"));
    QCOMPARE(
        accessible(page, QAccessible::StaticText, "Couldn't load")->text(QAccessible::Description),
        "Couldn't load “a” — the file may be corrupt. Re-import it.");
  }

  // The grid sets out tiles that it doesn't make: what it is told must be what they ask for.
  void tilesAreAsHighAsTold() {
    const LogoVariant variant{QUuid::createUuid(), {"a.svg", "a.svg"}, {}, {}};
    const auto logo = [&](int count) {
      return Item::create(LogoPayload{{"Logo", QList<LogoVariant>(count, variant)}});
    };
    const GradientStop stop{QUuid::createUuid(), "#000000", 0.5};
    const AssetRef font{"a.otf", "a.otf"};
    const QString line = "let some = long + enough + toBreak(inAColumn, ofAnyWidth)\n";
    TestPage page({sectionOf(
        "A", {colorItem("named"), colorItem("", "teal"),
              Item::create(ColorPayload{{"#F00", {}, "PMS 1"}}),
              Item::create(GradientPayload{{{stop, stop, stop}, 45, {}}}), imageItem("image"),
              videoItem("video"), Item::create(FontPayload{{"Inter", {}, {}, {}, {}}}),
              Item::create(FontPayload{{"Inter", {}, {}, font, {}}}), logo(0), logo(1), logo(7),
              Item::create(CodePayload{{"swift", line.repeated(9), "code"}})})});
    const Section section = page.stored(0);
    for (const auto mode : allCases<AssetDisplayMode>()) {
      page.library.store->preferences().setAssetDisplayMode(mode);
      const BrandWorkspace& workspace = *page.workspace;
      const FlowMetrics metrics{workspace.gridMinWidth(), workspace.gridMaxWidth(),
                                workspace.tileHeight(), mode == AssetDisplayMode::expanded};
      page.settle();
      QCOMPARE(page.tiles().size(), section.items.size());
      for (const QQuickItem* tile : page.tiles()) {
        const Item& item = TestPage::tileOf(const_cast<QQuickItem*>(tile))->item();
        const double told = TileHeights::of(item, metrics, tile->width());
        const double off = std::abs(tile->implicitHeight() - told);
        const bool isEstimate = TileHeights::isEstimate(item, metrics);
        QVERIFY2(off <= (isEstimate ? told / 10 : 0.5), qPrintable(item.displayName()));
        QVERIFY2(tile->height() >= std::floor(tile->implicitHeight()),
                 qPrintable(item.displayName()));
      }
    }
  }

  // What is seen moves by what was scrolled, though nothing above it has been laid out before.
  void ofManySectionsThoseNearExist() {
    QList<Section> sections;
    for (int i = 0; i < 1000; ++i) {
      sections << sectionOf(QString::number(i),
                            {colorItem(QString("tile %1").arg(i)),
                             textItem(QString("WORDS, MANY ").repeated(1 + 40 * (i % 3)))});
    }
    TestPage page(sections);
    auto* const column = page.view.rootObject()->findChild<SectionColumn*>();
    page.click("tile 0");
    QTest::mouseMove(&page.view, {5, 5});
    for (const int wanted : {500, 999}) {
      QVERIFY(QMetaObject::invokeMethod(page.view.rootObject(), "showSection", Q_ARG(int, wanted)));
      const auto there = [&] { return page.tileNamed(QString("tile %1").arg(wanted)); };
      QTRY_VERIFY(there() && page.view.rootObject()->contains(there()->mapToScene({})));
    }
    QCOMPARE(page.focused(), "tile 0");  // it is far away by now, and has the keyboard
    for (int i = 990; i > 965; --i) {
      page.settle();
      const auto seen = [&] { return page.tileNamed(QString("tile %1").arg(i)); };
      page.scrollTo(column->topOf(i));
      QVERIFY(seen());
      const double before = seen()->mapToScene({}).y();
      page.scrollTo(page.scrolled() - 300);
      QCOMPARE(seen()->mapToScene({}).y(), before + 300);
    }
    QVERIFY(column->liveCount() < 60);
    page.section(965).remove();
    page.settle();
    QVERIFY(!page.tileNamed("tile 965"));
  }

  void sectionsComeGoAndMove() {
    TestPage page({sectionOf("A", {colorItem("a"), textItem("t")}), sectionOf("B", {}),
                   sectionOf("C", {colorItem("c")})});
    const auto order = [&] {
      page.settle();
      QList<TileFlow*> lists = page.flows();
      std::sort(lists.begin(), lists.end(), [](TileFlow* a, TileFlow* b) {
        return a->mapToScene({}).y() < b->mapToScene({}).y();
      });
      QString names;
      for (TileFlow* list : lists) names += list->section()->name();
      return names;
    };
    QCOMPARE(order(), "ABC");
    QVERIFY(accessible(page, QAccessible::StaticText,
                       "Drop images here, or use ＋ to add colors, type, and more."));  // in B
    page.section(2).moveUp();
    QCOMPARE(order(), "ACB");
    page.section(0).moveDown();
    QCOMPARE(order(), "CAB");
    page.section(1).remove();
    QCOMPARE(order(), "CB");
    page.addSection("D");
    QCOMPARE(order(), "CBD");
  }
};

QTEST_MAIN(TestBrandPage)
#include "tst_brandpage.moc"
