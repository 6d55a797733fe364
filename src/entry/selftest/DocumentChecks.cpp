#include "entry/selftest/Checks.h"

#include <QDir>

namespace tarnloft::SelfTest {

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
