#include "testing/Cases.h"
#include "workspace/Items.h"
#include "workspace/flow/FlowLayout.h"

#include <QTest>

using namespace tarnloft;

namespace {

constexpr FlowMetrics medium{132, 180, 96};

// Of "c" a named colour, of "i" an image (which has no second line), of "b" a block of 30 points.
FlowLayout layoutOf(const QString& kinds, double width, const FlowMetrics& metrics = medium) {
  SharedList<Item> items;
  for (const QChar kind : kinds) {
    items.append(kind == 'c' ? colorItem("c") : kind == 'i' ? imageItem("i") : textItem("b"));
  }
  FlowLayout layout;
  layout.setOut(items, width, metrics, [](int) { return 30; });
  return layout;
}

}  // namespace

class TestFlowLayout : public QObject {
  Q_OBJECT

 private slots:
  void fillsTheWidthWithColumns() {
    // of the tiles of the first row: widths
    const Cases<double, QList<int>> cases{{"just two", 278.0, QList<int>{132, 132}},
                                          {"not quite two", 277.0, QList<int>{180}},
                                          {"narrower than one", 100.0, QList<int>{100}},
                                          {"points left over", 281.0, QList<int>{134, 133}},
                                          {"six", 952.0, QList<int>{147, 147, 147, 147, 147, 147}}};
    cases.check([&](double width, const QList<int>& widths) {
      const FlowLayout layout = layoutOf("cccccccccccc", width);
      double x = 0;
      for (int i = 0; i < widths.size(); ++i) {
        QCOMPARE(layout.rect(i), QRectF(x, 0, widths.at(i), 132));
        x += widths.at(i) + 14;
      }
      QCOMPARE(layout.rect(int(widths.size())).topLeft(), QPointF(0, 146));
    });
  }

  void makesEachRowAsHighAsItsHighestTile() {
    const FlowLayout layout = layoutOf("iiicii", 278);
    QCOMPARE(layout.rect(0).height(), 96 + 6 + 16);
    QCOMPARE(layout.rect(2).height(), 96 + 6 + 16 + 14);
    QCOMPARE(layout.rect(3).height(), layout.rect(2).height());
    QCOMPARE(layout.rect(4).top(), 118 + 14 + 132 + 14);
    QCOMPARE(layout.height(), layout.rect(5).bottom());
  }

  void leadsFromTileToTile() {
    using enum FlowLayout::Direction;
    // Rows: 0 | 1 2 3 | 4 | 5 6 | 7
    const FlowLayout layout = layoutOf("bcccbccb", 426);
    const Cases<int, FlowLayout::Direction, int> cases{{"right", 1, right, 2},
                                                       {"right over a block", 3, right, 5},
                                                       {"right at the end", 6, right, 6},
                                                       {"left at the beginning", 1, left, 1},
                                                       {"down over a block", 2, down, 6},
                                                       {"down into a shorter row", 3, down, 6},
                                                       {"down at the end", 5, down, 5},
                                                       {"up over a block", 6, up, 2},
                                                       {"first", 6, first, 1},
                                                       {"last", 1, last, 6}};
    cases.check([&](int from, FlowLayout::Direction direction, int to) {
      QCOMPARE(layout.neighbour(from, direction), to);
    });
  }
};

QTEST_GUILESS_MAIN(TestFlowLayout)
#include "tst_flowlayout.moc"
