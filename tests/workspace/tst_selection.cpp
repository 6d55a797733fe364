#include "testing/Cases.h"
#include "workspace/selection/TileSelection.h"

#include <QTest>

#include <algorithm>

using namespace tarnloft;

namespace {

QUuid id(QChar name) { return QUuid(name.unicode(), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0); }

QList<QUuid> ids(const QString& names) {
  QList<QUuid> result;
  for (const QChar name : names) result << id(name);
  return result;
}

// "s:abc|c": the section, the ids and the anchor; empty for nothing at all.
QString state(const TileSelection& selection) {
  const auto name = [](const std::optional<QUuid>& of) {
    return of ? QString(QChar(char16_t(of->data1))) : QString();
  };
  QString names;
  for (const QUuid& each : selection.ids()) names += name(each);
  std::sort(names.begin(), names.end());
  const QString text = name(selection.sectionID()) + ':' + names + '|' + name(selection.anchor());
  return text == ":|" ? QString() : text;
}

// Does "+a" toggle a, ">a" extend to a, "*abc" select all, "-" clear, "s" or "t" the section that
// the next ones are in. Sections hold a, b, c, d.
void run(TileSelection& selection, const QString& script) {
  QUuid section = id('s');
  for (const QString& step : script.split(' ')) {
    const QString rest = step.mid(1);
    switch (step.at(0).unicode()) {
      case '+': selection.toggle(id(rest.at(0)), section); break;
      case '>': selection.extend(id(rest.at(0)), section, ids("abcd")); break;
      case '*': selection.selectAll(ids(rest), section); break;
      case '-': selection.clear(); break;
      default: section = id(step.at(0));
    }
  }
}

}  // namespace

class TestSelection : public QObject {
  Q_OBJECT

 private slots:
  void followsClicks() {
    const Cases<QString, QString> cases{
        {"the only one away", "+a +a", ""},
        {"away again", "+a +b +b", "s:a|b"},
        {"a range backwards", "+d >b", "s:bcd|d"},
        {"a range without an anchor", ">c", "s:c|c"},
        {"two ranges of one anchor", "+b >d >a", "s:abcd|b"},
        {"a range from one that was taken away", "+a +d +d >b", "s:abcd|d"},
        {"a range to what isn't in the order", "+a >x", "s:ax|a"},
        {"the same tile in another section", "+a t +a", "t:a|a"},
        {"a range in another section", "+a t >c", "t:c|c"},
        {"all of another section", "+a t *bc", "t:bc|c"},
        {"all of nothing", "+a *", "s:a|a"},
        {"all of nothing elsewhere", "+a t *", "s:a|a"},
        {"a range behind all", "*ab >d", "s:abcd|b"}};
    cases.check([&](const QString& script, const QString& result) {
      TileSelection selection;
      run(selection, script);
      QCOMPARE(state(selection), result);
    });
  }

  void tellsOfWholeChangesOnly() {
    TileSelection selection;
    QStringList seen;
    connect(&selection, &TileSelection::idsChanged, [&] { seen << state(selection); });
    connect(&selection, &TileSelection::sectionIDChanged,
            [&] { seen << "in " + state(selection); });
    run(selection, "- +a >a +b");
    QCOMPARE(seen, QStringList({"in s:a|a", "s:a|a", "s:ab|b"}));
    seen.clear();
    run(selection, "*ab t +a - -");
    QCOMPARE(seen, QStringList({"in t:a|a", "t:a|a", "in ", ""}));
  }
};

QTEST_APPLESS_MAIN(TestSelection)
#include "tst_selection.moc"
