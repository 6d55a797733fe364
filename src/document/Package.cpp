#include "document/Package.h"

#include "model/FileName.h"
#include "model/Json.h"
#include "model/Uuid.h"

#include <QTextBoundaryFinder>

namespace tarnloft::Package {
namespace {

QString inPackage(const QString& packageURL, const char* name) {
  return packageURL + QLatin1Char('/') + QLatin1String(name);
}

tl::unexpected<Error> notPlain() {
  return failure(ErrorKind::refused, QStringLiteral("Not a plain file name"));
}

// Of an asset whose name is plain.
QString pathOf(const QString& packageURL, const AssetRef& asset) {
  return assetsPath(packageURL) + QLatin1Char('/') + asset.filename;
}

Result<QByteArray> readAll(FileReader& file) {
  if (file.size() > largestJson) {
    return failure(ErrorKind::tooLarge, QStringLiteral("The file is too large"));
  }
  QByteArray bytes;
  bytes.reserve(file.size() + jsonPadding);
  bytes.resize(file.size());
  qint64 filled = 0;
  while (filled < bytes.size()) {
    const auto count = file.read(bytes.data() + filled, bytes.size() - filled);
    if (!count) return tl::unexpected(count.error());
    if (*count == 0) break;  // cut short since it was opened
    filled += *count;
  }
  bytes.resize(filled);
  return bytes;
}

// Bytes of a file's name that leave " 9999.tarnloft" and " Brand Page.html" room within 255.
constexpr qsizetype longestName = 239;

// The whole characters at the beginning that take so many bytes at most.
QString beginning(const QString& text, qsizetype bytes) {
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
  qsizetype end = 0;
  for (qsizetype next = characters.toNextBoundary(); next > 0; next = characters.toNextBoundary()) {
    bytes -= QStringView(text).sliced(end, next - end).toUtf8().size();
    if (bytes < 0) break;
    end = next;
  }
  return text.left(end);
}

}  // namespace

QString manifestPath(const QString& packageURL) { return inPackage(packageURL, "manifest.json"); }
QString assetsPath(const QString& packageURL) { return inPackage(packageURL, "assets"); }
QString thumbnailsPath(const QString& packageURL) { return inPackage(packageURL, "thumbnails"); }
QString versionsPath(const QString& packageURL) { return inPackage(packageURL, "versions"); }

QString newAssetName(const QString& extension) {
  return canonicalString(QUuid::createUuid()) + QLatin1Char('.') + extension;
}

QString folderOf(const QString& path) {
  const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
  return slash < 0 ? QStringLiteral(".") : path.left(std::max<qsizetype>(slash, 1));
}

QString fileNameFor(const QString& brandName) {
  QString name = brandName.trimmed();
  name.replace(QLatin1Char('/'), QLatin1Char('-')).replace(QLatin1Char(':'), QLatin1Char('-'));
  if (name.startsWith(QLatin1Char('.'))) name[0] = QLatin1Char('-');  // else it would be hidden
  name = beginning(name, longestName).trimmed();
  return name.isEmpty() ? QStringLiteral("Untitled Brand") : name;
}

QStringList pathExtensions() { return {QStringLiteral("tarnloft"), QStringLiteral("yewstack")}; }

bool isPackagePath(const QString& path) { return pathExtensions().contains(pathExtension(path)); }

QString uniquePackageURL(const FileStore& files, const QString& folder, const QString& name) {
  const QString base = folder + QLatin1Char('/') + fileNameFor(name);
  const QString extension = QStringLiteral(".tarnloft");
  QString candidate = base + extension;
  for (int counter = 2; files.exists(candidate); ++counter) {
    candidate = base + QLatin1Char(' ') + QString::number(counter) + extension;
  }
  return candidate;
}

Result<ReadFile> readJson(const FileStore& files, const QString& path, const QString& packageURL) {
  if (packageURL.isEmpty()) return failure(ErrorKind::refused, QStringLiteral("No package"));
  const auto file = files.open(path, packageURL);
  if (!file) return tl::unexpected(file.error());
  auto bytes = readAll(**file);
  if (!bytes) return tl::unexpected(bytes.error());
  return ReadFile{std::move(*bytes), (*file)->identity()};
}

Result<QByteArray> checkedSize(const QByteArray& json) {
  if (json.size() <= largestJson) return json;
  return failure(ErrorKind::tooLarge, QStringLiteral("The brand is too large"));
}

Result<void> makeFolder(FileStore& files, const QString& path, const QString& packageURL) {
  if (!files.isFolder(packageURL)) {
    return failure(ErrorKind::notFound, QStringLiteral("The brand's package isn't there"));
  }
  if (auto made = files.makeFolder(path); !made) return made;
  if (files.standsInside(path, packageURL)) return {};
  return failure(ErrorKind::refused, QStringLiteral("The folder is outside of its package"));
}

Result<QString> assetPath(const QString& packageURL, const AssetRef& asset) {
  return isPlainFileName(asset.filename) ? Result<QString>(pathOf(packageURL, asset)) : notPlain();
}

Result<QString> assetPath(const FileStore& files, const QString& packageURL,
                          const AssetRef& asset) {
  if (!isPlainFileName(asset.filename)) return notPlain();
  const QString path = pathOf(packageURL, asset);
  if (!files.exists(path) || files.standsInside(path, packageURL)) return path;
  return failure(ErrorKind::refused, QStringLiteral("The file is outside of its package"));
}

Result<std::unique_ptr<FileReader>> openAsset(const FileStore& files, const QString& packageURL,
                                              const AssetRef& asset) {
  if (!isPlainFileName(asset.filename)) return notPlain();
  return files.open(pathOf(packageURL, asset), packageURL);
}

}  // namespace tarnloft::Package
