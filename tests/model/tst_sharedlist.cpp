#include "model/SharedList.h"
#include "testing/RandomBrand.h"

#include <QTest>

#include <vector>

using namespace tarnloft;

namespace {

std::vector<int> elements(const SharedList<int>& list) { return {list.begin(), list.end()}; }

}  // namespace

class TestSharedList : public QObject {
  Q_OBJECT

 private slots:
  void behavesLikeAVectorUnderRandomEdits() {
    RandomBrand random(7);
    SharedList<int> list;
    std::vector<int> expected;
    for (int round = 0; round < 5000; ++round) {
      const auto at = random.below(int(expected.size()) + 1);
      const bool removes = !expected.empty() && random.below(5) < (round < 3000 ? 1 : 4);
      if (removes && size_t(at) < expected.size()) {
        QCOMPARE(list.takeAt(at), expected[size_t(at)]);
        expected.erase(expected.begin() + at);
      } else if (!expected.empty() && size_t(at) < expected.size() && random.below(3) == 0) {
        list[at] = expected[size_t(at)] = round;
      } else {
        list.insert(at, round);
        expected.insert(expected.begin() + at, round);
      }
      QCOMPARE(list.size(), qsizetype(expected.size()));
      if (round % 50 == 0) QCOMPARE(elements(list), expected);
    }
    QCOMPARE(elements(list), expected);
    for (size_t i = 0; i < expected.size(); ++i) QCOMPARE(list.at(qsizetype(i)), expected[i]);
  }

  void copiesAreIndependent() {
    SharedList<int> list;
    for (int i = 0; i < 1000; ++i) list.append(i);
    SharedList<int> copy = list;
    copy[500] = -1;
    copy.takeAt(0);
    copy.insert(3, -2);
    QCOMPARE(list.at(500), 500);
    QCOMPARE(list.size(), 1000);
    QCOMPARE(list.at(0), 0);
    QVERIFY(!(copy == list));
  }

  void equalityLooksAtElementsNotAtRuns() {
    SharedList<int> forwards, backwards;
    for (int i = 0; i < 500; ++i) forwards.append(i);
    for (int i = 499; i >= 0; --i) backwards.insert(0, i);
    QVERIFY(forwards == backwards);
    backwards[250] = 0;
    QVERIFY(!(forwards == backwards));
  }
};

QTEST_APPLESS_MAIN(TestSharedList)
#include "tst_sharedlist.moc"
