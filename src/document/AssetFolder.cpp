#include "document/AssetFolder.h"

#include "document/AtomicWrite.h"
#include "document/Package.h"
#include "model/FileName.h"

namespace tarnloft {

Result<AssetFolder> AssetFolder::make(FileStore& files, const QString& packageURL) {
  const QString path = Package::assetsPath(packageURL);
  return Package::makeFolder(files, path, packageURL).map([&] { return AssetFolder(files, path); });
}

Result<AssetRef> AssetFolder::copyIn(const QString& source) const {
  const QString extension = pathExtension(source);
  AssetRef asset{Package::newAssetName(extension.isEmpty() ? QStringLiteral("dat") : extension),
                 lastPathComponent(source)};
  return files_->copyFile(source, pathOf(asset)).map([&] { return asset; });
}

Result<AssetRef> AssetFolder::write(const QByteArray& data, const QString& originalName,
                                    const QString& extension) const {
  AssetRef asset{Package::newAssetName(extension), originalName};
  return writeAtomically(*files_, pathOf(asset), Durability::atomic,
                         [&](FileWriter& file) { return file.write(data); })
      .map([&] { return asset; });
}

QString AssetFolder::pathOf(const AssetRef& asset) const {
  return path_ + QLatin1Char('/') + asset.filename;
}

}  // namespace tarnloft
