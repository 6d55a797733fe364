// A brand of 10,000 tiles beside one of 20, on the offscreen platform: opening, scrolling, memory.
#include "Measure.h"
#include "Ratio.h"
#include "workspace/Items.h"
#include "workspace/TestPage.h"

#include <QElapsedTimer>
#include <QQmlComponent>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>

using namespace tarnloft;

namespace {

// Of all kinds of tile.
Section mixedSection(int count) {
  Section section = Section::create("Mixed");
  for (int i = 0; i < count; ++i) {
    const QString name = QString::number(i);
    section.items.append(i % 3 == 0   ? colorItem(name)
                         : i % 3 == 1 ? imageItem(name, name + ".png")
                                      : Item::create(CodePayload{{"css", "a {}", name}}));
  }
  return section;
}

void open(TestPage& page, const QString& brand) {
  page.view.setSource(QUrl());
  page.workspace.reset();
  page.library.store->select(page.library.packagePath(brand));
  page.makeWorkspace();
  page.show();
}

// From the selection of a brand to its first whole frame, in milliseconds.
double opening(TestPage& page, const QString& brand) {
  open(page, "Acme");
  page.settle();
  QElapsedTimer clock;
  clock.start();
  open(page, brand);
  (void)page.view.grabWindow();
  return double(clock.nsecsElapsed()) / 1e6;
}

// The share of frames that took longer than one of 60 a second, scrolling from top to bottom.
double slowFrames(TestPage& page, int frames) {
  constexpr double frameTime = 1000.0 / 60;
  const double end = page.scroll()->property("contentHeight").toDouble() - page.scroll()->height();
  int slow = 0;
  QElapsedTimer clock;
  for (int frame = 1; frame <= frames; ++frame) {
    clock.start();
    page.scroll()->setProperty("contentY", std::max(end, 1.0) * frame / frames);
    QCoreApplication::processEvents();
    (void)page.view.grabWindow();
    if (double(clock.nsecsElapsed()) / 1e6 > frameTime) ++slow;
  }
  return 100.0 * slow / frames;
}

int visibleTiles(const TestPage& page) {
  const auto tiles = page.tiles();
  return int(std::count_if(tiles.begin(), tiles.end(), [&](QQuickItem* tile) {
    const double top = tile->mapToItem(page.scroll(), QPointF()).y();
    return top < page.scroll()->height() && top + tile->height() > 0;
  }));
}

// One tile of the open brand moves to another place that is seen.
void moveOne(TestPage& page) {
  ItemListModel& items = *page.section(0).items();
  int moves = 0, others = 0;
  QObject::connect(&items, &QAbstractItemModel::rowsMoved, [&] { ++moves; });
  const auto count = [&] { ++others; };
  QObject::connect(&items, &QAbstractItemModel::rowsInserted, count);
  QObject::connect(&items, &QAbstractItemModel::rowsRemoved, count);
  QObject::connect(&items, &QAbstractItemModel::dataChanged, count);
  QObject::connect(&items, &QAbstractItemModel::modelReset, count);
  const int made = page.flow().madeCount();
  const SharedList<Item> before = items.items();
  page.document().moveItem(before.at(9).id, page.stored(0).id, before.at(2).id);
  QTest::qWait(1000);
  std::printf("one tile of 10,000 moved: %d move, %d other signals, %d views made (aim: 1, 0, 0)\n",
              moves, others, page.flow().madeCount() - made);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  TestPage page({});
  page.library.add("Twenty", {mixedSection(20)});
  page.library.add("Many", {mixedSection(10000)});

  {
    QTest::qWait(300);
    const double atRest = residentMegabytes();
    open(page, "Many");
    QTest::qWait(500);
    std::printf("memory with 10,000 tiles open: %.1f MB more than with none (aim: at most 60)\n",
                residentMegabytes() - atRest);
    printRatio("views that exist / tiles that are seen",
               double(page.flow().liveCount()) / visibleTiles(page), Aim::atMost, 3);
  }

  std::vector<double> few, many;
  for (int round = 0; round < 15; ++round) {
    few.push_back(opening(page, "Twenty"));
    many.push_back(opening(page, "Many"));
  }
  std::printf("opening: %.1f ms with 20 tiles, %.1f ms with 10,000\n", median(few), median(many));
  printRatio("opening a brand of 10,000 tiles / of 20", median(many) / median(few), Aim::atMost, 2);

  open(page, "Many");
  QTest::qWait(500);
  moveOne(page);
  constexpr int frames = 1200;
  std::printf(
      "frames over 16.7 ms, scrolling 10,000 tiles in %d frames: %.1f %% (aim: at most 5)\n",
      frames, slowFrames(page, frames));
  std::printf("views made: %d\n", page.flow().madeCount());
  open(page, "Twenty");
  std::printf("the same with 20 tiles: %.1f %%\n", slowFrames(page, frames));
  return 0;
}
