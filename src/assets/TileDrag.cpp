#include "assets/TileDrag.h"

#include "assets/DragFileExport.h"
#include "assets/ItemDrag.h"
#include "assets/TiffFlavour.h"
#include "model/FileName.h"

#include <QSet>

namespace tarnloft::TileDrag {
namespace {

// None for a name that leads out of the package, which counts as a file that can't be read.
std::optional<QString> exported(FileStore& files, const PackageReader& package,
                                const AssetRef& asset) {
  const auto path = package.assetPath(asset);
  if (!path) return std::nullopt;
  return DragFileExport::tempURL(files, *path, asset.originalName);
}

// "Logo.png" is "Logo 2.png" then.
QString numbered(const QString& name, int number) {
  const QString extension = pathExtension(name);
  return withoutPathExtension(name) + QLatin1Char(' ') + QString::number(number) +
         (extension.isEmpty() ? QString() : QLatin1Char('.') + extension);
}

DragItem fileItem(const std::optional<QString>& path, const QString& originalName) {
  return {path, withoutPathExtension(lastPathComponent(originalName)), std::nullopt, nullptr};
}

bool isPicture(const ContentTypes& types, const AssetRef& asset) {
  return types.conforms(types.typeOfExtension(pathExtension(asset.originalName)),
                        ContentClass::image);
}

}  // namespace

DragItem variantProvider(FileStore& files, const PackageReader& package, const AssetRef& asset) {
  const auto url = exported(files, package, asset);
  const bool isThere = url && files.exists(*url) && !files.isFolder(*url);
  return fileItem(isThere ? url : std::nullopt, asset.originalName);
}

DragItem fileExportProvider(const DragServices& services, const PackageReader& package,
                            const AssetRef& asset) {
  DragItem item = variantProvider(services.files, package, asset);
  if (item.file && isPicture(services.types, asset)) {
    // Of the package's own file: the copy may have made way for another of its name by then.
    item.makeTiff = [&images = services.images, path = *package.assetPath(asset)](qint64 maxBytes) {
      return TiffFlavour::make(images, path, maxBytes);
    };
  }
  return item;
}

DragItem makeDragProvider(const DragServices& services, const PackageReader& package,
                          const Item& item) {
  const auto asset = item.exportableAsset();
  return ItemDrag::provider(item.id, ItemDrag::type,
                            asset ? fileExportProvider(services, package, *asset) : DragItem());
}

QStringList exportURLs(FileStore& files, const PackageReader& package,
                       const QList<AssetRef>& assets) {
  QStringList urls;
  QSet<QString> taken;  // folded, as some receivers' disks tell no case
  for (const AssetRef& asset : assets) {
    const QString name = lastPathComponent(asset.originalName);
    QString free = name;
    for (int number = 2; taken.contains(free.toCaseFolded()); ++number)
      free = numbered(name, number);
    const auto url = exported(files, package, {asset.filename, free});
    if (!url || !files.exists(*url)) continue;
    taken.insert(free.toCaseFolded());
    urls << *url;
  }
  return urls;
}

QList<DragItem> providers(const QStringList& urls) {
  QList<DragItem> items;
  for (const QString& url : urls) items << fileItem(url, url);
  return items;
}

}  // namespace tarnloft::TileDrag
