#include "entry/selftest/SelfTest.h"

#include "entry/selftest/Checks.h"

#include <QDir>

#include <csignal>
#include <cstdio>

namespace tarnloft::SelfTest {
namespace {

void print(const QString& line) {
  std::fputs(line.toUtf8().constData(), stdout);
  std::fputc('\n', stdout);
}

void runChecks(Report& report, const DocumentServices& services, Images& images) {
  // Without one the groups would work in the root folder.
  if (QDir::tempPath().isEmpty()) {
    return report.check(QStringLiteral("temporary directory exists"), false);
  }
  checkColors(report);
  checkBrandStructure(report);
  checkPackage(report, services);
  checkReorder(report, services);
  checkInvalidate(report, services);
  checkAccentResolution(report);
  checkGlobalSearch(report);
  checkUndo(report, services);
  checkTileSelection(report);
  checkConversions(report);
  checkPalette(report);
  checkBrandPage(report, services);
  checkLogoSet(report);
  checkLogoPage(report, services);
  checkSpotColor(report);
  checkUsageNotes(report);
  checkNotesPage(report, services);
  checkVersions(report, services);
  checkThumbnail(report, images);
  checkFonts(report, services);
  checkUngrouping(report);
  checkDragOut(report, services);
  checkExportableAssets(report);
  checkImageExport(report, images);
}

}  // namespace

void Report::check(const QString& label, bool passed) {
  if (passed) {
    print(QStringLiteral("  ✔ ") + label);
    ++passed_;
  } else {
    print(QStringLiteral("  x ") + label + QStringLiteral("  <-- FAILED"));
    ++failed_;
  }
}

void Report::setupFailed(const QString& label, const Error& error) {
  check(label + QStringLiteral(" (") + error.message + QLatin1Char(')'), false);
}

ScratchFolder::ScratchFolder(const QString& prefix)
    : path_(QDir::tempPath() + QLatin1Char('/') + prefix +
            QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper()) {
  QDir().mkdir(path_);
}

ScratchFolder::~ScratchFolder() { QDir(path_).removeRecursively(); }

bool run(const DocumentServices& services, Images& images) {
  // Whoever reads the report may go; the groups still remove what they made.
  std::signal(SIGPIPE, SIG_IGN);
  print(QStringLiteral("Tarn Loft self-test"));
  Report report;
  runChecks(report, services, images);
  print(QStringLiteral("\n%1 passed, %2 failed").arg(report.passed()).arg(report.failed()));
  const bool printed = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
  return report.failed() == 0 && printed;
}

}  // namespace tarnloft::SelfTest
