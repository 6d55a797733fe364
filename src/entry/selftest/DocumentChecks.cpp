#include "document/UndoHistory.h"
#include "entry/selftest/Checks.h"

#include <QDir>

namespace tarnloft::SelfTest {
namespace {

Item textItem(const QString& body) { return Item::create(TextPayload{body}); }

// The names of a section's items, as "A,B,C".
QString order(const Section& section) {
  QStringList names;
  for (const Item& item : section.items) names << item.displayName();
  return names.join(QLatin1Char(','));
}

const BrandVersion* versionLabelled(const QList<BrandVersion>& versions, const QString& label) {
  for (const BrandVersion& version : versions) {
    if (version.label == label) return &version;
  }
  return nullptr;
}

}  // namespace

void checkPackage(Report& report, const DocumentServices& services) {
  const ScratchFolder folder(QStringLiteral("tarnloft-selftest-"));
  const auto document = BrandDocument::create(services, folder.path(), QStringLiteral("Disk Test"));
  if (!document) return report.setupFailed(QStringLiteral("package create"), document.error());
  (*document)->edit(
      [](Brand& brand) { brand.sections.append(Section::create(QStringLiteral("Extra"))); });
  (*document)->saveNow();
  const QString package = (*document)->packageURL();
  const auto anew = BrandDocument::load(services, package);
  report.check(QStringLiteral("package saves + reloads"),
               anew && anew->brand().sections.last().name == QStringLiteral("Extra"));
  report.check(QStringLiteral("assets dir exists"),
               QDir(package + QStringLiteral("/assets")).exists());
}

void checkReorder(Report& report, const DocumentServices& services) {
  const ScratchFolder folder(QStringLiteral("tarnloft-reorder-"));
  const auto created = BrandDocument::create(services, folder.path(), QStringLiteral("Reorder"));
  if (!created) return report.check(QStringLiteral("reorder doc create"), false);
  BrandDocument& document = **created;
  const Item a = textItem(QStringLiteral("A")), b = textItem(QStringLiteral("B")),
             c = textItem(QStringLiteral("C"));
  document.edit([&](Brand& brand) { brand.sections.first().items = {a, b, c}; });
  const QUuid first = document.brand().sections.at(0).id, last = document.brand().sections.at(1).id;
  document.moveItem(c.id, first, a.id);
  report.check(QStringLiteral("moveItem before: C,A,B"),
               order(document.brand().sections.first()) == QStringLiteral("C,A,B"));
  document.moveItem(b.id, last, std::nullopt);
  report.check(QStringLiteral("moveItem cross-section"),
               order(document.brand().sections.at(0)) == QStringLiteral("C,A") &&
                   order(document.brand().sections.at(1)) == QStringLiteral("B"));
  const Brand before = document.brand();
  document.moveItem(a.id, first, a.id);
  report.check(QStringLiteral("moveItem self no-op"), document.brand() == before);
  document.moveSection(last, first);
  report.check(QStringLiteral("moveSection before"), document.brand().sections.first().id == last);
  document.saveNow();
}

void checkUndo(Report& report, const DocumentServices& services) {
  const ScratchFolder folder(QStringLiteral("tarnloft-undo-"));
  const auto created = BrandDocument::create(services, folder.path(), QStringLiteral("Undo"));
  if (!created) return report.check(QStringLiteral("undo doc create"), false);
  BrandDocument& document = **created;
  UndoHistory history;
  const QList<Section> before = document.brand().sections;
  document.mutate(QStringLiteral("Delete"), &history,
                  [](Brand& brand) { brand.sections.removeFirst(); });
  const QList<Section> after = document.brand().sections;
  report.check(QStringLiteral("mutate applies change"), after == before.sliced(1));
  history.undo();
  report.check(QStringLiteral("undo restores"), document.brand().sections == before);
  history.redo();
  report.check(QStringLiteral("redo re-applies"), document.brand().sections == after);
  document.saveNow();
}

void checkVersions(Report& report, const DocumentServices& services) {
  const ScratchFolder folder(QStringLiteral("tarnloft-ver-"));
  const auto created = BrandDocument::create(services, folder.path(), QStringLiteral("Versioned"));
  if (!created) return report.check(QStringLiteral("version doc create"), false);
  BrandDocument& document = **created;
  report.check(QStringLiteral("no versions initially"), document.listVersions().isEmpty());
  document.edit([](Brand& brand) { brand.name = QStringLiteral("Original"); });
  document.snapshotVersion(QStringLiteral("v1"));
  document.edit([](Brand& brand) { brand.name = QStringLiteral("Edited"); });
  document.snapshotVersion(QStringLiteral("v2"));
  const QList<BrandVersion> versions = document.listVersions();
  const BrandVersion* v1 = versionLabelled(versions, QStringLiteral("v1"));
  report.check(QStringLiteral("two snapshots saved"),
               versions.size() == 2 && versionLabelled(versions, QStringLiteral("v2")));
  if (!v1) return report.check(QStringLiteral("v1 present"), false);
  document.restoreVersion(*v1, nullptr);
  report.check(QStringLiteral("restore brings back the snapshot"),
               document.brand().name == QStringLiteral("Original"));
  document.deleteVersion(*v1);
  report.check(QStringLiteral("delete removes a version"), document.listVersions().size() == 1);
  document.saveNow();
}

void checkInvalidate(Report& report, const DocumentServices& services) {
  const ScratchFolder folder(QStringLiteral("tarnloft-invalidate-"));
  const auto document = BrandDocument::create(services, folder.path(), QStringLiteral("Del"));
  if (!document) return report.check(QStringLiteral("invalidate doc create"), false);
  const QString package = (*document)->packageURL();
  (*document)->invalidate();
  QDir(package).removeRecursively();
  (*document)->edit([](Brand& brand) { brand.name = QStringLiteral("changed"); });
  (*document)->saveNow();
  report.check(QStringLiteral("invalidate blocks resurrection"),
               !services.files.exists(package + QStringLiteral("/manifest.json")));
}

}  // namespace tarnloft::SelfTest
