#pragma once

#include "document/BrandDocument.h"
#include "platform/Images.h"

#include <QString>

namespace tarnloft::SelfTest {

// Prints and counts the checks of a run.
class Report {
 public:
  void check(const QString& label, bool passed);
  // The one line of a group whose setup failed: "package create (error)".
  void setupFailed(const QString& label, const Error& error);

  int passed() const { return passed_; }
  int failed() const { return failed_; }

 private:
  int passed_ = 0;
  int failed_ = 0;
};

// A folder for one group, `<prefix><UUID>` in the system's temporary directory, gone at its end.
class ScratchFolder {
 public:
  explicit ScratchFolder(const QString& prefix);
  ~ScratchFolder();
  Q_DISABLE_COPY_MOVE(ScratchFolder)

  const QString& path() const { return path_; }

 private:
  QString path_;
};

// The groups, each named after what it checks, in running order.
void checkColors(Report& report);
void checkBrandStructure(Report& report);
void checkPackage(Report& report, const DocumentServices& services);
void checkReorder(Report& report, const DocumentServices& services);
void checkInvalidate(Report& report, const DocumentServices& services);
void checkAccentResolution(Report& report);
void checkGlobalSearch(Report& report);
void checkUndo(Report& report, const DocumentServices& services);
void checkTileSelection(Report& report);
void checkConversions(Report& report);
void checkPalette(Report& report);
void checkBrandPage(Report& report, const DocumentServices& services);
void checkLogoSet(Report& report);
void checkLogoPage(Report& report, const DocumentServices& services);
void checkSpotColor(Report& report);
void checkUsageNotes(Report& report);
void checkNotesPage(Report& report, const DocumentServices& services);
void checkVersions(Report& report, const DocumentServices& services);
void checkThumbnail(Report& report, Images& images);
void checkFonts(Report& report, const DocumentServices& services);
void checkUngrouping(Report& report);
void checkDragOut(Report& report, const DocumentServices& services);
void checkExportableAssets(Report& report);
void checkImageExport(Report& report, Images& images);

}  // namespace tarnloft::SelfTest
