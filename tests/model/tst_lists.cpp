#include "model/ListDifference.h"
#include "model/SharedList.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"

#include <QTest>

#include <algorithm>
#include <vector>

using namespace tarnloft;
using Kind = ListChange::Kind;

namespace {

QUuid idOf(QChar c) { return QUuid(c.unicode(), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0); }

// Letters are ids; a letter in upper case is the same element with another value.
std::vector<QUuid> ids(const QString& text) {
  std::vector<QUuid> result;
  for (const QChar c : text) result.push_back(idOf(c.toLower()));
  return result;
}

QList<ListChange> difference(const QString& before, const QString& after) {
  return listDifference(ids(before), ids(after),
                        [&](qsizetype a, qsizetype b) { return before[a] == after[b]; });
}

QString shown(const QList<ListChange>& changes) {
  QStringList steps;
  for (const ListChange& step : changes) {
    switch (step.kind) {
      case Kind::remove: steps << QString("-%1x%2").arg(step.from).arg(step.count); break;
      case Kind::move: steps << QString("%1>%2").arg(step.from).arg(step.to); break;
      case Kind::insert: steps << QString("+%1x%2").arg(step.to).arg(step.count); break;
      case Kind::change: steps << QString("!%1").arg(step.to); break;
    }
  }
  return steps.join(' ');
}

std::vector<int> elements(const SharedList<int>& list) { return {list.begin(), list.end()}; }

}  // namespace

class TestLists : public QObject {
  Q_OBJECT

 private slots:
  void fewestSteps() {
    const Cases<QString, QString, QString> cases{
        {"same", "abc", "abc", ""},
        {"from nothing", "", "abc", "+0x3"},
        {"to nothing", "abc", "", "-0x3"},
        {"one moved forwards", "abcde", "bcade", "0>2"},
        {"one moved backwards", "abcde", "aebcd", "4>1"},
        {"removals from the back", "abcdef", "acf", "-3x2 -1x1"},
        {"insertions", "ad", "abcde", "+1x2 +4x1"},
        {"changed", "abc", "aBc", "!1"},
        {"moved and changed", "abc", "bcA", "0>2 !2"},
        {"replaced", "ab", "cd", "-0x2 +0x2"},
        {"all together", "abcde", "fdaB", "-4x1 -2x1 +0x1 3>1 !3"}};
    cases.check([&](const QString& before, const QString& after, const QString& steps) {
      QCOMPARE(shown(difference(before, after)), steps);
    });
  }

  void repeatedIdsReplaceTheList() {
    QCOMPARE(shown(difference("aab", "ba")), "-0x3 +0x2");
    QCOMPARE(shown(difference("abc", "cbba")), "-0x3 +0x4");
  }

  void behavesLikeAVectorUnderRandomEdits() {
    RandomBrand random(7);
    SharedList<int> list;
    std::vector<int> expected;
    std::vector<std::pair<SharedList<int>, std::vector<int>>> copies;
    for (int round = 0; round < 5000; ++round) {
      if (round % 500 == 0) copies.emplace_back(list, expected);
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
    for (const auto& [copy, then] : copies) {
      QCOMPARE(elements(copy), then);
      SharedList<int> anew;  // of other runs
      for (const int element : then) anew.append(element);
      QVERIFY(anew == copy);
      if (anew.isEmpty()) continue;
      anew[anew.size() / 2] = -1;
      QVERIFY(!(anew == copy));
    }
  }
};

QTEST_GUILESS_MAIN(TestLists)
#include "tst_lists.moc"
