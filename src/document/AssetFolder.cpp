#include "document/AssetFolder.h"

#include "document/Package.h"
#include "model/FileName.h"

namespace tarnloft {

Result<AssetFolder> AssetFolder::make(FileStore& files, const QString& packageURL) {
  const QString path = Package::assetsPath(packageURL);
  return Package::makeFolder(files, path, packageURL)
      .and_then([&] { return files.openFolder(path, packageURL); })
      .map([](std::shared_ptr<OpenFolder> folder) { return AssetFolder(std::move(folder)); });
}

Result<AssetRef> AssetFolder::copyIn(const QString& source, Progress& progress) const {
  const QString extension = pathExtension(source);
  AssetRef asset{Package::newAssetName(extension.isEmpty() ? QStringLiteral("dat") : extension),
                 lastPathComponent(source)};
  return folder_->copyIn(source, asset.filename, progress).map([&] { return asset; });
}

Result<AssetRef> AssetFolder::write(const QByteArray& data, const QString& originalName,
                                    const QString& extension) const {
  AssetRef asset{Package::newAssetName(extension), originalName};
  return folder_->writeIn(data, asset.filename).map([&] { return asset; });
}

Result<QString> AssetFolder::pathOf(const AssetRef& asset) const {
  return folder_->path().map(
      [&](const QString& path) { return path + QLatin1Char('/') + asset.filename; });
}

}  // namespace tarnloft
