#include "assets/DragFileExport.h"
#include "document/AtomicWrite.h"
#include "entry/selftest/Checks.h"
#include "model/FileName.h"
#include "model/Uuid.h"

#include <QDir>

namespace tarnloft::SelfTest {

void checkDragOut(Report& report, const DocumentServices& services) {
  FileStore& files = services.files;
  const QString asset = QDir::tempPath() + QStringLiteral("/tarnloft-dragtest-") +
                        canonicalString(QUuid::createUuid()) + QStringLiteral(".png");
  (void)writeAtomically(files, asset, Durability::atomic,
                        [](FileWriter& file) { return file.write("a picture"); });
  const QString url = DragFileExport::tempURL(files, asset, QStringLiteral("AcmeLogo.png"));
  report.check(QStringLiteral("drag-out uses the original filename"),
               lastPathComponent(url) == QStringLiteral("AcmeLogo.png"));
  report.check(QStringLiteral("drag-out file actually exists on disk"), files.exists(url));
  report.check(QStringLiteral("drag-out doesn't double the extension"),
               !url.endsWith(QStringLiteral(".png.png")));
  (void)files.remove(url);
  (void)files.remove(asset);
  // Gone with its last file, unless it holds what the user drags.
  if (const auto folder = files.makeTemporaryFolder(QStringLiteral("tarnloft-drag"))) {
    QDir().rmdir(*folder);
  }
}

}  // namespace tarnloft::SelfTest
