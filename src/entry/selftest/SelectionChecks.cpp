#include "entry/selftest/Checks.h"
#include "workspace/selection/TileSelection.h"

namespace tarnloft::SelfTest {

void checkTileSelection(Report& report) {
  const QUuid section = QUuid::createUuid(), other = QUuid::createUuid();
  const QUuid a = QUuid::createUuid(), b = QUuid::createUuid(), c = QUuid::createUuid(),
              d = QUuid::createUuid();
  TileSelection selection;
  selection.toggle(a, section);
  report.check(QStringLiteral("select one tile"),
               selection.contains(a, section) && !selection.contains(a, other));
  selection.toggle(b, section);
  report.check(QStringLiteral("⌘-add second tile"), selection.ids() == QSet{a, b});
  selection.toggle(b, section);
  report.check(QStringLiteral("⌘-toggle removes"), selection.ids() == QSet{a});
  selection.clear();
  selection.toggle(b, section);
  selection.extend(d, section, {a, b, c, d});
  report.check(QStringLiteral("⇧-range b…d selects 3"), selection.ids() == QSet{b, c, d});
  selection.toggle(a, other);
  report.check(QStringLiteral("selecting in new section resets"),
               selection.ids() == QSet{a} && selection.sectionID() == other);
  selection.clear();
  report.check(QStringLiteral("clear empties selection"),
               selection.ids().isEmpty() && !selection.sectionID() && !selection.anchor());
}

}  // namespace tarnloft::SelfTest
