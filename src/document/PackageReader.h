#pragma once

#include "document/Package.h"

namespace tarnloft {

// Reads the files of a package's `assets`, for those who work away from its document. A value; any
// thread, for as long as the store lives.
class PackageReader {
 public:
  PackageReader(const FileStore& files, QString packageURL)
      : files_(&files), packageURL_(std::move(packageURL)) {}

  // Opens a file; refuses names that lead out of the package.
  Result<std::unique_ptr<FileReader>> openAsset(const AssetRef& asset) const {
    return Package::openAsset(*files_, packageURL_, asset);
  }
  // The path of such a file, whether or not it is there; refuses the same names.
  Result<QString> assetPath(const AssetRef& asset) const {
    return Package::assetPath(*files_, packageURL_, asset);
  }

 private:
  const FileStore* files_;
  QString packageURL_;
};

}  // namespace tarnloft
