#include "publish/PageMarkup.h"

#include "model/FileName.h"

#include <QRegularExpression>

#include <array>
#include <modp_b64.h>
#include <utility>
#include <vector>

namespace tarnloft {
namespace {

// A multiple of three, so that only the last piece of a file is padded.
constexpr qint64 pieceSize = 384 * 1024;

constexpr std::array<std::pair<QLatin1StringView, const char*>, 15> mimeTypes{{
    {QLatin1StringView("png"), "image/png"},
    {QLatin1StringView("jpg"), "image/jpeg"},
    {QLatin1StringView("jpeg"), "image/jpeg"},
    {QLatin1StringView("gif"), "image/gif"},
    {QLatin1StringView("webp"), "image/webp"},
    {QLatin1StringView("svg"), "image/svg+xml"},
    {QLatin1StringView("heic"), "image/heic"},
    {QLatin1StringView("woff2"), "font/woff2"},
    {QLatin1StringView("woff"), "font/woff"},
    {QLatin1StringView("ttf"), "font/ttf"},
    {QLatin1StringView("otf"), "font/otf"},
    {QLatin1StringView("mp4"), "video/mp4"},
    {QLatin1StringView("m4v"), "video/mp4"},
    {QLatin1StringView("mov"), "video/quicktime"},
    {QLatin1StringView("webm"), "video/webm"},
}};

// Reads on until the buffer is full or the file ends, so that no piece but the last is short.
Result<qint64> fill(FileReader& file, std::vector<char>& buffer) {
  qint64 filled = 0;
  while (filled < qint64(buffer.size())) {
    auto count = file.read(buffer.data() + filled, qint64(buffer.size()) - filled);
    if (!count) return count;
    if (*count == 0) break;
    filled += *count;
  }
  return filled;
}

bool writeBase64(FileReader& file, PageSink& sink) {
  std::vector<char> bytes(size_t(std::min(pieceSize, file.size() / 3 * 3 + 3)));
  std::vector<char> text(modp_b64_encode_len(bytes.size()));
  for (;;) {
    const auto count = fill(file, bytes);
    if (!count) return false;
    const size_t length = modp_b64_encode(text.data(), bytes.data(), size_t(*count));
    sink << QByteArrayView(text.data(), qsizetype(length));
    if (*count < qint64(bytes.size()) || sink.failed()) return true;
  }
}

}  // namespace

QByteArray escaped(const QString& text) {
  QByteArray utf8 = text.toUtf8();
  return utf8.replace("&", "&amp;")
      .replace("<", "&lt;")
      .replace(">", "&gt;")
      .replace("\"", "&quot;");
}

QByteArrayView mimeType(const QString& extension) {
  for (const auto& [known, type] : mimeTypes) {
    if (known == extension) return type;
  }
  return "application/octet-stream";
}

QString plainColor(const QString& text) {
  static const QRegularExpression marks(QStringLiteral("[<>=\"']"));
  // References to those characters, of which browsers ask no semicolon.
  static const QRegularExpression references(QStringLiteral("&+(?=#|quot|apos|[lg]t)"),
                                             QRegularExpression::CaseInsensitiveOption);
  return QString(text).remove(marks).remove(references);
}

QString plainFamily(const QString& family) {
  static const QRegularExpression marks(QStringLiteral("[<>=]"));
  return QString(family).remove(marks);
}

QString cssFamily(const QString& family) {
  QString bare = plainFamily(family);
  bare.remove(QLatin1Char('"'));
  return QLatin1Char('"') + bare + QLatin1Char('"');
}

std::optional<WrittenURL> writeDataURL(const AssetRef& asset, const PageSource& source,
                                       PageSink& sink) {
  const auto file = source.package.openAsset(asset);
  if (!file) return std::nullopt;
  const qint64 start = sink.position();
  sink << "data:" << mimeType(pathExtension(asset.filename).toLower()) << ";base64,";
  if (!writeBase64(**file, sink)) return std::nullopt;
  return WrittenURL{start, sink.position() - start};
}

std::optional<WrittenURL> writeDataURLBehind(const QByteArray& head, const AssetRef& asset,
                                             const PageSource& source, PageSink& sink) {
  const qint64 start = sink.position();
  sink << head;
  const auto url = writeDataURL(asset, source, sink);
  if (!url) sink.rewind(start);
  return url;
}

}  // namespace tarnloft
