#include "assets/ExportTarget.h"

#include "assets/ImageExporter.h"
#include "model/FileName.h"

namespace tarnloft {

ExportTarget ExportTarget::create(Images& images, const QString& url, const AssetRef& asset) {
  return {QUuid::createUuid(), url, withoutPathExtension(asset.originalName),
          ImageExporter::nativeSize(images, url).value_or(QSizeF(1024, 1024))};
}

QString ExportTarget::path() const {
  const auto now = folder ? folder->path() : failure(ErrorKind::io, QString());
  return now ? *now + QLatin1Char('/') + lastPathComponent(url) : url;
}

}  // namespace tarnloft
