#include "assets/AssetMetadata.h"

#include "assets/ByteCount.h"
#include "model/FileName.h"
#include "model/Rounding.h"

namespace tarnloft::AssetMetadata {
namespace {

AssetSpec fileSpec(const FileStore& files, const QString& path) {
  AssetSpec spec;
  const QString extension = pathExtension(path);
  if (!extension.isEmpty()) spec.format = extension.toUpper();
  spec.fileSize = byteString(files, path);
  return spec;
}

QString dimensionsText(QSize size) {
  return QStringLiteral("%1 × %2 px").arg(size.width()).arg(size.height());
}

// None for the default of 72, which is no news.
std::optional<QString> dpiFlag(std::optional<double> dpi) {
  if (!dpi || !(*dpi > 0) || !fitsInteger(*dpi)) return std::nullopt;
  const qint64 whole = rounded(*dpi);
  return whole == 72 ? std::nullopt : std::optional(QStringLiteral("%1 dpi").arg(whole));
}

// Minutes and seconds: a film of 75 minutes has "75:00". None below half a second.
std::optional<QString> runningTime(double duration) {
  if (!fitsInteger(duration)) return std::nullopt;
  const qint64 seconds = rounded(duration);
  if (seconds < 1) return std::nullopt;
  return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace

AssetSpec imageSpec(const FileStore& files, Images& images, const QString& path) {
  AssetSpec spec = fileSpec(files, path);
  if (spec.format == QStringLiteral("SVG")) {
    spec.dimensions = QStringLiteral("Scalable");
    return spec;
  }
  const auto properties = images.properties(path);
  if (!properties) return spec;
  spec.dimensions = dimensionsText(properties->size);
  if (properties->hasAlpha) spec.flags << QStringLiteral("Transparent");
  if (const auto flag = dpiFlag(properties->dpi)) spec.flags << *flag;
  return spec;
}

AssetSpec videoSpec(const FileStore& files, Videos& videos, const QString& path) {
  AssetSpec spec = fileSpec(files, path);
  const auto properties = videos.properties(path);
  if (!properties) return spec;
  if (properties->duration) {
    if (const auto flag = runningTime(*properties->duration)) spec.flags << *flag;
  }
  if (properties->size) {
    const QSize size(qAbs(properties->size->width()), qAbs(properties->size->height()));
    spec.dimensions = dimensionsText(size);
  }
  return spec;
}

std::optional<QString> byteString(const FileStore& files, const QString& path) {
  const auto identity = files.identity(path);
  return identity ? std::optional(byteCountText(identity->size)) : std::nullopt;
}

}  // namespace tarnloft::AssetMetadata
