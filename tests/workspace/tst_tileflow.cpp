#include "workspace/Items.h"
#include "workspace/TestPage.h"

#include <QSignalSpy>

using namespace tarnloft;

namespace {

// Tiles of which at least a part is seen.
int visibleCount(const TestPage& page) {
  const QQuickItem* scroll = page.scroll();
  int count = 0;
  for (QQuickItem* tile : page.tiles()) {
    const double top = tile->mapToItem(scroll, QPointF()).y();
    if (top < scroll->height() && top + tile->height() > 0) ++count;
  }
  return count;
}

QStringList shownNames(const TestPage& page) {
  QList<QQuickItem*> tiles = page.tiles();
  std::sort(tiles.begin(), tiles.end(), [](QQuickItem* a, QQuickItem* b) {
    return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
  });
  QStringList names;
  for (QQuickItem* tile : tiles) names << TestPage::tileOf(tile)->name();
  return names;
}

}  // namespace

class TestTileFlow : public QObject {
  Q_OBJECT

 private slots:
  void makesOnlyWhatIsNearTheViewport() {
    TestPage page({colorSection("Colors", 10000)});
    const int visible = visibleCount(page);
    QVERIFY(visible >= 24);
    QTest::qWait(100);
    for (int y = 0; y < 20000; y += 400) {
      page.scrollTo(y);
      QVERIFY(visibleCount(page) >= 24);
      QVERIFY(page.flow().liveCount() <= 3 * visible);
    }
    QVERIFY(page.flow().madeCount() < 150);  // those that went out of sight serve again
  }

  void theFirstFrameShowsAllThatIsSeen() {
    TestPage page({colorSection("Colors", 10000)});
    page.show();
    (void)page.view.grabWindow();
    const int visible = visibleCount(page);
    QCOMPARE(page.tiles().size(), visible);
    page.settle();
    QCOMPARE(visibleCount(page), visible);
    QTRY_VERIFY(page.tiles().size() > visible);  // what is near comes a little later
  }

  void aMoveMakesNoViewAnewAndGlides() {
    TestPage page({colorSection("Colors", 10000)});
    for (int frame = 0; frame < 20; ++frame) page.settle();
    QSignalSpy moves(page.section(0).items(), &QAbstractItemModel::rowsMoved);
    QSignalSpy inserts(page.section(0).items(), &QAbstractItemModel::rowsInserted);
    const int made = page.flow().madeCount();
    QQuickItem* moved = page.tileNamed("7");
    QQuickItem* target = page.tileNamed("1");
    const QPointF from = moved->position(), to = target->position();
    page.document().moveItem(TestPage::tileOf(moved)->item().id, page.stored(0).id,
                             TestPage::tileOf(target)->item().id);
    QTRY_VERIFY(moved->position() != from);
    QCOMPARE(page.tileNamed("7"), moved);
    QVERIFY(moved->position() != to);
    QTRY_COMPARE(moved->position(), to);
    QCOMPARE(moves.count(), 1);
    QCOMPARE(inserts.count(), 0);
    QCOMPARE(page.flow().madeCount(), made);
  }

  void aMoveFromOutOfSightComesIntoSight() {
    TestPage page({colorSection("Colors", 1000)});
    const auto& items = page.stored(0).items;
    const QUuid first = items.at(0).id, far = items.at(900).id;
    page.document().moveItem(far, page.stored(0).id, first);
    QTRY_VERIFY(page.tileNamed("900"));
    QTRY_COMPARE(page.tileNamed("900")->position(), QPointF(0, 0));
    page.document().moveItem(far, page.stored(0).id, std::nullopt);
    QTRY_VERIFY(!page.tileNamed("900"));
  }

  void viewsStayWithTheirItems() {
    TestPage page({colorSection("Colors", 12)});
    QHash<QUuid, QQuickItem*> before;
    for (QQuickItem* tile : page.tiles()) before[TestPage::tileOf(tile)->item().id] = tile;
    page.document().edit([](Brand& brand) {
      auto& items = brand.sections[0].items;
      (void)items.takeAt(5);
      items.insert(0, colorItem("new"));
      items.append(items.takeAt(2));
    });
    QTRY_VERIFY(page.tileNamed("new"));
    QTRY_COMPARE(shownNames(page), page.names(0));
    for (QQuickItem* tile : page.tiles()) {
      const Item& item = TestPage::tileOf(tile)->item();
      if (item.displayName() != "new") QCOMPARE(tile, before.value(item.id));
    }
    const QPoint pressed = page.middleOf("new");
    QTest::mousePress(&page.view, Qt::LeftButton, {}, pressed);
    page.document().edit([](Brand& brand) { brand.sections[0].items[0] = colorItem("newer"); });
    QTRY_VERIFY(page.tileNamed("newer"));
    QTest::mouseRelease(&page.view, Qt::LeftButton, {}, pressed);
    QVERIFY(page.pasteboard.texts.isEmpty());  // of either
  }

  void takesTheHeightOfItsBlocks() {
    const QString long_ = QString("many words ").repeated(40);
    TestPage page({sectionOf("A", {textItem(long_), colorItem("below")})});
    const QQuickItem* text = page.tileNamed(long_);
    QVERIFY(text->height() >= 3 * 15);
    QCOMPARE(text->height(), std::ceil(text->implicitHeight()));
    QCOMPARE(page.tileNamed("below")->y(), text->height() + 14);
    page.document().edit(
        [](Brand& brand) { brand.sections[0].items[0].payload = TextPayload{"short"}; });
    page.settle();
    QTRY_COMPARE(page.tileNamed("below")->y(), page.tileNamed("short")->implicitHeight() + 14);
  }

  // Their heights are only known when they come near, which must not move what the user reads.
  void blocksAboveTheViewDoNotPushIt() {
    Section section = Section::create("A");
    for (int i = 0; i < 60; ++i) section.items.append(textItem(QString("Wiii ").repeated(150 + i)));
    for (int i = 0; i < 60; ++i) section.items.append(colorItem(QString::number(i)));
    TestPage page({section});
    (void)page.scrollToEnd();
    for (int step = 0; step < 40; ++step) {
      QQuickItem* anchor = nullptr;  // some view in sight
      for (QQuickItem* tile : page.tiles()) {
        const double y = tile->mapToItem(page.scroll(), QPointF()).y();
        if (y > 100 && y < 400) anchor = tile;
      }
      QVERIFY(anchor);
      const double before = anchor->mapToItem(page.scroll(), QPointF()).y();
      page.scrollTo(page.scrolled() - 150);
      QCOMPARE(anchor->mapToItem(page.scroll(), QPointF()).y(), before + 150);
    }
  }
};

QTEST_MAIN(TestTileFlow)
#include "tst_tileflow.moc"
