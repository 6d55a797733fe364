#include "document/BrandMerge.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"
#include "testing/TestDocument.h"

#include <QSet>
#include <QTest>

using namespace tarnloft;

namespace {

QUuid idOf(QChar c, ushort kind) { return QUuid(c.unicode(), kind, 0, 0, 0, 0, 0, 0, 0, 0, 0); }

// "S:ab T:c2": sections, in words, with their items. The first letter of a word is the section's
// id, the whole word its name; a letter of an item is its id, with a digit behind it its text.
Brand brandOf(const QString& shape) {
  Brand brand;
  for (const QString& word : shape.split(' ', Qt::SkipEmptyParts)) {
    const QString name = word.section(':', 0, 0), items = word.section(':', 1);
    Section section{idOf(name[0], 1), name, std::nullopt, {}};
    for (qsizetype i = 0; i < items.size(); ++i) {
      Item item{idOf(items[i], 2), {}, std::nullopt, std::nullopt};
      QString text(items[i]);
      if (i + 1 < items.size() && items[i + 1].isDigit()) text += items[++i];
      item.payload = TextPayload{text};
      section.items.append(item);
    }
    brand.sections << section;
  }
  return brand;
}

QHash<QUuid, Item> itemsById(const Brand& brand) {
  QHash<QUuid, Item> items;
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) items.insert(item.id, item);
  }
  return items;
}

bool hasEachIdOnce(const Brand& brand) {
  QSet<QUuid> sections, items;
  qsizetype count = 0;
  for (const Section& section : brand.sections) {
    sections.insert(section.id);
    for (const Item& item : section.items) items.insert(item.id);
    count += section.items.size();
  }
  return sections.size() == brand.sections.size() && items.size() == count;
}

}  // namespace

class TestBrandMerge : public QObject {
  Q_OBJECT

 private slots:
  void takesBackItsOwnStep() {
    // of the step that is undone: after
    // with later work: present
    const Cases<QString, QString, QString, QString> cases{
        {"deleted, then one dropped", "S:abc", "S:ac", "S:acx", "S:abcx"},
        {"deleted, then its neighbour too", "S:abcd", "S:acd", "S:cdx", "S:bcdx"},
        {"deleted, then all others", "S:ab", "S:b", "S:x", "S:ax"},
        {"deleted, and brought back by other means", "S:ab", "S:b", "S:ba2", "S:ba2"},
        {"deleted, then its section", "S:ab T:c", "S:b T:c", "T:cx", "S:a T:cx"},
        {"duplicated, and the copy changed", "S:ab", "S:abc", "S:abc2x", "S:abx"},
        {"duplicated, and the copy moved", "S:ab T:", "S:abc T:", "S:ab T:cx", "S:ab T:x"},
        {"moved, then moved on", "S:ab T: U:", "S:a T:b U:", "S:a T: U:b", "S:a T: U:b"},
        {"moved, then deleted", "S:ab T:", "S:a T:b", "S:ax T:", "S:ax T:"},
        {"moved, then changed", "S:ab T:", "S:a T:b", "S:a T:b2", "S:ab2 T:"},
        {"moved, then its old section deleted", "S:ab T:", "S:a T:b", "T:bx", "S:b T:x"},
        {"ordered, then otherwise", "S:abcd", "S:bcda", "S:bacd", "S:bacd"},
        {"changed, then anew", "S:ab", "S:a2b", "S:a3b", "S:a3b"},
        {"changed, then deleted", "S:ab", "S:a2b", "S:bx", "S:bx"},
        {"grouped, then one dropped", "S:abcd", "S:aLd", "S:aLdx", "S:abcdx"},
        {"a section added, then one dropped into it", "S:a", "S:a T:b", "S:a T:bx", "S:a T:x"},
        {"a section added, then renamed", "S:a", "S:a T:", "S:a Tx:", "S:a Tx:"},
        {"a section removed, then one dropped", "S:a T:b U:c", "S:a U:c", "S:ax U:c",
         "S:ax T:b U:c"},
        {"a section's items dealt out", "S:a T:b", "S:ab", "S:abx", "S:ax T:b"},
        {"a section renamed, then anew", "S:a", "Sx:a", "Sy:ab", "Sy:ab"},
        {"sections ordered, then one added", "S:a T:b U:c", "T:b U:c S:a",
         "T:b U:c S:a V:", "S:a T:b U:c V:"}};
    cases.check([&](const QString& before, const QString& after, const QString& present,
                    const QString& undone) {
      const Brand merged = reapplied(brandOf(after), brandOf(before), brandOf(present));
      QCOMPARE(shapeOf(merged), undone);
    });
  }

  void mergesFieldByField() {
    Item color = Item::create(ColorPayload{{"#111111", "One", std::nullopt}});
    Brand before = brandOf("S:");
    before.name = "Old";
    before.sections[0].items.append(color);
    Brand after = before;
    after.name = "New";
    after.sections[0].items[0].payload = ColorPayload{{"#222222", "Two", std::nullopt}};
    Brand present = after;
    present.accentHex = "#ABCDEF";
    present.sections[0].emblem = Emblem{Emblem::Kind::emoji, {}, "x", {}, {}};
    present.sections[0].items[0].payload = ColorPayload{{"#222222", "Mine", "PMS 1"}};
    present.sections[0].items[0].imageBackground = ImageBackground::dark;
    const Brand merged = reapplied(after, before, present);
    Brand expected = present;
    expected.name = "Old";
    expected.sections[0].items[0].payload = ColorPayload{{"#111111", "Mine", "PMS 1"}};
    QVERIFY(merged == expected);
  }

  void nothingInBetweenGivesTheEarlierBrand() {
    RandomBrand random(41);
    for (int round = 0; round < 300; ++round) {
      const Brand before = random.brand(random.below(4), random.below(5));
      const Brand after = random.edited(before);
      Brand saved = after;
      saved.updatedAt += std::chrono::seconds(1);
      QVERIFY(reapplied(after, before, saved) == before);
      // A step that changes nothing takes nothing of the later work away.
      const Brand present = random.edited(after);
      QVERIFY(reapplied(after, after, present) == present);
    }
  }

  void laterWorkOutlivesAnyUndo() {
    RandomBrand random(43);
    for (int round = 0; round < 3000; ++round) {
      const Brand before = random.brand(1 + random.below(3), random.below(5));
      const Brand after = random.edited(before), present = random.edited(after);
      const Brand undone = reapplied(after, before, present);
      QVERIFY(hasEachIdOnce(undone));
      const auto old = itemsById(before), done = itemsById(after), now = itemsById(present),
                 left = itemsById(undone);
      for (const Item& item : now) {
        const bool isOfTheStep = done.contains(item.id) && !old.contains(item.id);
        QCOMPARE(left.contains(item.id), !isOfTheStep);
        if (done.value(item.id) != item && !isOfTheStep) QVERIFY(left.value(item.id) == item);
      }
      for (const Item& item :
           old) {  // what the step took or changed, and nobody since, is as it was
        if (!done.contains(item.id)) QVERIFY(left.value(item.id) == item);
        if (now.contains(item.id) && now.value(item.id) == done.value(item.id)) {
          QVERIFY(left.value(item.id) == item);
        }
      }
      // The redo takes back the undo, whatever comes in between.
      const Brand later = random.edited(undone), redone = reapplied(undone, present, later);
      QVERIFY(hasEachIdOnce(redone));
      const auto afterwards = itemsById(redone);
      for (const Item& item : itemsById(later)) {
        if (!left.contains(item.id) || now.contains(item.id)) QVERIFY(afterwards.contains(item.id));
      }
      QVERIFY(reapplied(undone, present, undone) == present);
      QVERIFY(reapplied(redone, later, redone) == later);
    }
  }
};

QTEST_GUILESS_MAIN(TestBrandMerge)
#include "tst_brandmerge.moc"
