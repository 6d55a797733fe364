#include "assets/DragFileExport.h"

#include "model/FileName.h"

namespace tarnloft::DragFileExport {

QString tempURL(FileStore& files, const QString& assetURL, const QString& originalName) {
  const auto folder = files.makeTemporaryFolder(QStringLiteral("tarnloft-drag"));
  if (!folder) return assetURL;
  const QString clientName = lastPathComponent(originalName);
  const QString name = isPlainFileName(clientName) ? clientName : lastPathComponent(assetURL);
  const QString target = *folder + QLatin1Char('/') + name;
  if (!files.remove(target)) (void)files.removeFolder(target);  // usually nothing stood there
  return files.copyFile(assetURL, target) ? target : assetURL;
}

}  // namespace tarnloft::DragFileExport
