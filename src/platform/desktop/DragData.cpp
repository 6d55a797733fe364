#include "platform/desktop/DragData.h"

#include <QUrl>

#include <algorithm>

namespace tarnloft {
namespace {

const QString uriListFormat = QStringLiteral("text/uri-list");
const QString textFormat = QStringLiteral("text/plain");
const QString tiffFormat = QStringLiteral("image/tiff");

bool hasFile(const DragItem& item) { return item.file.has_value(); }
bool hasPicture(const DragItem& item) { return bool(item.makeTiff); }

}  // namespace

QStringList DragData::formats() const {
  QStringList formats;
  if (std::any_of(items_.begin(), items_.end(), hasFile)) formats << uriListFormat << textFormat;
  if (std::any_of(items_.begin(), items_.end(), hasPicture)) formats << tiffFormat;
  return formats;
}

QVariant DragData::retrieveData(const QString& format, QMetaType /*type*/) const {
  if (!hasFormat(format)) return {};
  if (format == uriListFormat) return uriList();
  if (format == textFormat) return plainPaths();
  const auto made = tiff();
  return made ? QVariant(*made) : QVariant();
}

QByteArray DragData::uriList() const {
  QByteArray list;
  for (const DragItem& item : items_) {
    if (item.file) list += QUrl::fromLocalFile(*item.file).toEncoded() + "\r\n";
  }
  return list;
}

QString DragData::plainPaths() const {
  QStringList paths;
  for (const DragItem& item : items_) {
    if (item.file) paths << *item.file;
  }
  return paths.join(QLatin1Char('\n'));
}

// Of the first picture: the format holds one.
std::optional<QByteArray> DragData::tiff() const {
  if (!madeTiff_) madeTiff_ = std::find_if(items_.begin(), items_.end(), hasPicture)->makeTiff();
  return *madeTiff_;
}

}  // namespace tarnloft
