#include "platform/desktop/dragging/DragData.h"

#include <QGuiApplication>
#include <QUrl>

#include <algorithm>
#include <limits>
#include <xcb/xcb.h>

namespace tarnloft {
namespace {

const QString uriListFormat = QStringLiteral("text/uri-list");
const QString textFormat = QStringLiteral("text/plain");
const QString tiffFormat = QStringLiteral("image/tiff");

// The X server ends the whole program for an answer that is longer than one request, into which the
// toolkit puts it.
qint64 longestAnswer() {
  constexpr qint64 requestHead = 64;
  const auto* gui = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
  const auto* x11 = gui ? gui->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
  xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
  if (!connection) return std::numeric_limits<qint64>::max();
  return qint64(xcb_get_maximum_request_length(connection)) * 4 - requestHead;
}

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
  if (!madeTiff_) madeTiff_ = makeTiff();
  return *madeTiff_ ? QVariant(**madeTiff_) : QVariant();
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
std::optional<QByteArray> DragData::makeTiff() const {
  const qint64 longest = longestAnswer();
  auto tiff = std::find_if(items_.begin(), items_.end(), hasPicture)->makeTiff(longest);
  return tiff && tiff->size() <= longest ? tiff : std::nullopt;
}

}  // namespace tarnloft
