#pragma once

#include "model/AssetRef.h"
#include "platform/FileStore.h"

// The names in a brand's package folder. Every path inside a package is made here.
namespace tarnloft::Package {

QString manifestPath(const QString& packageURL);
QString assetsPath(const QString& packageURL);
QString thumbnailsPath(const QString& packageURL);
QString versionsPath(const QString& packageURL);

// A new name for a file of `assets`: a fresh UUID and the extension.
QString newAssetName(const QString& extension);

// The folder that a file stands in.
QString folderOf(const QString& path);

// The extensions of packages: the present one and the former.
QStringList pathExtensions();

// True for a path that ends in one of them, exactly.
bool isPackagePath(const QString& path);

// A package path in the folder that is still free, made from a brand's name: "Acme.tarnloft", then
// "Acme 2.tarnloft" and so on.
QString uniquePackageURL(const FileStore& files, const QString& folder, const QString& name);

// A brand's name made fit for a file's: trimmed, "/", ":" and a dot at its beginning replaced by
// "-", "Untitled Brand" if nothing is left. Of a long one as many whole characters as leave room
// for a counter and an extension.
QString fileNameFor(const QString& brandName);

// A file's whole content, with room for the JSON reader behind it, and which state of it that is.
struct ReadFile {
  QByteArray bytes;
  FileIdentity identity;
};

// The size in bytes of the largest JSON file that is read: a hundred thousand items. Reading takes
// some ten times as much memory.
constexpr qint64 largestJson = qint64(64) * 1024 * 1024;

// Reads a JSON file of the package, whose path isn't empty; refuses one that leads out of it. The
// failure's kind is `tooLarge` for one beyond `largestJson`.
Result<ReadFile> readJson(const FileStore& files, const QString& path, const QString& packageURL);

// Refuses what `readJson` would find too large.
Result<QByteArray> checkedSize(const QByteArray& json);

// Makes a folder of the package, such as `assets`; refuses one that leads out of it. A package that
// has gone isn't made again.
Result<void> makeFolder(FileStore& files, const QString& path, const QString& packageURL);

// The path of a file of `assets`, whether or not it is there, for those who need a path. A
// `filename` that is not a plain file name, or a link that leads out of the package, is refused.
Result<QString> assetPath(const FileStore& files, const QString& packageURL, const AssetRef& asset);

// The same without looking at the disk, for those who hand it on to one that does.
Result<QString> assetPath(const QString& packageURL, const AssetRef& asset);

// Opens a file of `assets`. A `filename` that is not a plain file name, or that leads out of the
// package, is refused.
Result<std::unique_ptr<FileReader>> openAsset(const FileStore& files, const QString& packageURL,
                                              const AssetRef& asset);

}  // namespace tarnloft::Package
