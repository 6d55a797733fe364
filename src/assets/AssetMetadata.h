#pragma once

#include "assets/AssetSpec.h"
#include "platform/FileStore.h"
#include "platform/Images.h"
#include "platform/Videos.h"

// Reads what a tile tells of its file. Never fails: what can't be read stays absent. Any thread;
// all but `byteString` open the file, so not for the main thread.
namespace tarnloft::AssetMetadata {

AssetSpec imageSpec(const FileStore& files, Images& images, const QString& path);
AssetSpec videoSpec(const FileStore& files, Videos& videos, const QString& path);

// The file's size, such as "2.4 MB".
std::optional<QString> byteString(const FileStore& files, const QString& path);

}  // namespace tarnloft::AssetMetadata
