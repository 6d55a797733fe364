#pragma once

#include "model/AssetRef.h"
#include "platform/FileStore.h"

// The names in a brand's package folder. Every path inside a package is made here.
namespace tarnloft::Package {

QString manifestPath(const QString& packageURL);
QString assetsPath(const QString& packageURL);
QString thumbnailsPath(const QString& packageURL);

// The folder that a file stands in.
QString folderOf(const QString& path);

// A package path in the folder that is still free, made from a brand's name: "Acme.tarnloft", then
// "Acme 2.tarnloft" and so on.
QString uniquePackageURL(const FileStore& files, const QString& folder, const QString& name);

// A brand's name made fit for a file's: trimmed, "/" and ":" replaced by "-", "Untitled Brand" if
// nothing is left.
QString fileNameFor(const QString& brandName);

// The whole of `manifest.json`, with room for the JSON reader behind it.
Result<QByteArray> readManifest(const FileStore& files, const QString& packageURL);

// Opens a file of `assets`. A `filename` that is not a plain file name, or that leads out of the
// package, is refused.
Result<std::unique_ptr<FileReader>> openAsset(const FileStore& files, const QString& packageURL,
                                              const AssetRef& asset);

}  // namespace tarnloft::Package
