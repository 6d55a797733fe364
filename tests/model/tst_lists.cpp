#include "model/ListDifference.h"
#include "model/SharedList.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"

#include <QAbstractItemModelTester>
#include <QAbstractListModel>
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

// A view's list model over items, driven by nothing but the steps.
class ItemModel : public QAbstractListModel {
 public:
  SharedList<Item> items;

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : int(items.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    return role == Qt::DisplayRole ? items.at(index.row()).displayName() : QVariant();
  }
  void follow(const SharedList<Item>& next) {
    for (const ListChange& step : listDifference(items, next)) apply(step, next);
  }

 private:
  void apply(const ListChange& step, const SharedList<Item>& next) {
    const int from = int(step.from), to = int(step.to), count = int(step.count);
    switch (step.kind) {
      case Kind::remove:
        beginRemoveRows({}, from, from + count - 1);
        for (int i = 0; i < count; ++i) items.takeAt(from);
        return endRemoveRows();
      case Kind::insert:
        beginInsertRows({}, to, to + count - 1);
        for (int i = 0; i < count; ++i) items.insert(to + i, next.at(from + i));
        return endInsertRows();
      case Kind::move:
        beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
        items.insert(to, items.takeAt(from));
        return endMoveRows();
      case Kind::change: items[to] = next.at(to); emit dataChanged(index(to), index(to));
    }
  }
};

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

  void aModelFollowsRandomEdits() {
    RandomBrand random(23);
    ItemModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    SharedList<Item> list;
    for (int round = 0; round < 400; ++round) {
      for (int edits = random.below(6); edits >= 0; --edits) {
        const int size = int(list.size());
        const int what = random.below(4);
        if (size == 0 || what == 0) {
          list.insert(random.below(size + 1), random.item());
        } else if (what == 1) {
          list.takeAt(random.below(size));
        } else if (what == 2) {
          const Item moved = list.takeAt(random.below(size));
          list.insert(random.below(size), moved);
        } else {
          list[random.below(size)].payload = TextPayload{QString::number(round)};
        }
      }
      model.follow(list);
      QVERIFY(model.items == list);
    }
  }

  void movesAreAsFewAsCanBe() {
    RandomBrand random(29);
    for (int round = 0; round < 300; ++round) {
      QString before = QString("abcdefgh").left(random.below(9)), after = before;
      for (qsizetype i = after.size() - 1; i > 0; --i) {
        const qsizetype other = random.below(int(i) + 1);
        const QChar c = after[i];
        after[i] = after[other];
        after[other] = c;
      }
      // By trying all subsets: the longest that stands in the same order in both need not move.
      int longest = 0;
      for (int subset = 0; subset < 1 << before.size(); ++subset) {
        QString a, b;
        for (qsizetype i = 0; i < before.size(); ++i) {
          if (subset >> i & 1) a += before[i];
        }
        for (const QChar c : after) {
          if (a.contains(c)) b += c;
        }
        if (a == b) longest = std::max(longest, int(a.size()));
      }
      QCOMPARE(difference(before, after).size(), before.size() - longest);
    }
  }

  void repeatedIdsReplaceTheList() {
    QCOMPARE(shown(difference("aab", "ba")), "-0x3 +0x2");
    QCOMPARE(shown(difference("abc", "cbba")), "-0x3 +0x4");
  }

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

QTEST_GUILESS_MAIN(TestLists)
#include "tst_lists.moc"
