#include "platform/desktop/system/MimeContentTypes.h"

#include <QFileInfo>

#include <algorithm>

namespace tarnloft {
namespace {

// What a class holds beside the types of its own family, and what of that family isn't in it.
struct Members {
  QLatin1String family;
  QStringList others;
  QStringList excluded;

  bool contain(const QString& type) const {
    return (type.startsWith(family) && !excluded.contains(type)) || others.contains(type);
  }
};

// Single pages of PostScript and what Illustrator saves are pictures; a PDF is a document.
const Members& pictures() {
  static const Members members{
      QLatin1String("image/"),
      {QStringLiteral("application/postscript"), QStringLiteral("application/illustrator"),
       QStringLiteral("application/dicom")},
      {}};
  return members;
}

const Members& movies() {
  static const Members members{
      QLatin1String("video/"),
      {QStringLiteral("application/mxf"), QStringLiteral("application/vnd.ms-asf"),
       QStringLiteral("application/vnd.rn-realmedia"), QStringLiteral("application/x-matroska")},
      {QStringLiteral("video/vnd.mpegurl")}};  // a playlist
  return members;
}

// Without metrics, sources and dumps of fonts, which the table counts among them.
const Members& fonts() {
  static const Members members{
      QLatin1String("font/"),
      {QStringLiteral("application/x-font-type1"), QStringLiteral("application/x-font-bdf"),
       QStringLiteral("application/x-font-pcf"), QStringLiteral("application/x-font-ttf"),
       QStringLiteral("application/x-font-otf"), QStringLiteral("application/font-sfnt"),
       QStringLiteral("application/font-woff"), QStringLiteral("application/vnd.ms-opentype"),
       QStringLiteral("application/vnd.ms-fontobject")},
      {}};
  return members;
}

bool isData(const QString& type) {
  return !type.startsWith(QLatin1String("inode/")) && !type.startsWith(QLatin1String("x-content/"));
}

bool isOf(const QString& type, ContentClass contentClass) {
  switch (contentClass) {
    case ContentClass::image: return pictures().contain(type);
    case ContentClass::movie:
    case ContentClass::video: return movies().contain(type);  // MIME doesn't tell them apart
    case ContentClass::font: return fonts().contain(type);
    case ContentClass::data: break;
  }
  return isData(type);
}

// Something that a brand has a tile of.
bool isAsset(const QMimeType& type) {
  return isOf(type.name(), ContentClass::image) || isOf(type.name(), ContentClass::movie) ||
         isOf(type.name(), ContentClass::font);
}

}  // namespace

QString MimeContentTypes::typeOfFile(const QString& path) const {
  const QFileInfo file(path);
  return file.isFile() ? database_.mimeTypeForFile(file).name() : QString();
}

QString MimeContentTypes::typeOfExtension(const QString& extension) const {
  if (extension.isEmpty() || extension.contains(QLatin1Char('/'))) return {};
  const auto types = database_.mimeTypesForFileName(QLatin1String("a.") + extension);
  const auto asset = std::find_if(types.begin(), types.end(), isAsset);
  if (asset != types.end()) return asset->name();
  return types.isEmpty() ? QString() : types.first().name();
}

bool MimeContentTypes::conforms(const QString& mimeType, ContentClass contentClass) const {
  if (mimeType.isEmpty()) return false;
  const QMimeType known = database_.mimeTypeForName(mimeType);  // by whichever of its names
  return isOf(known.isValid() ? known.name() : mimeType, contentClass);
}

}  // namespace tarnloft
