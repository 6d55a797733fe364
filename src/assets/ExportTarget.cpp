#include "assets/ExportTarget.h"

#include "assets/ImageExporter.h"
#include "model/FileName.h"

namespace tarnloft {

ExportTarget ExportTarget::create(Images& images, const QString& url, const AssetRef& asset) {
  return {QUuid::createUuid(), url, withoutPathExtension(asset.originalName),
          ImageExporter::nativeSize(images, url).value_or(QSizeF(1024, 1024))};
}

}  // namespace tarnloft
