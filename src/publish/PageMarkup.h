#pragma once

#include "publish/PageSink.h"
#include "publish/PageSource.h"

#include <functional>

// What all fragments of a brand page share.
namespace tarnloft {

// The text as UTF-8 with "&", "<", ">" and the double quote as entities.
QByteArray escaped(const QString& text);

// Of a lower-case file extension; "application/octet-stream" for one that isn't known.
QByteArrayView mimeType(const QString& extension);

// A colour's text as the page prints it, unescaped, in scripts and styles: without what no colour
// holds and what could end either, also where it hides in a character reference.
QString plainColor(const QString& text);

// A font family as the page shows it, without what no family holds and what could end a tag.
QString plainFamily(const QString& family);

// A font family as it stands in the page's CSS: plain, in double quotes, its own double quotes
// removed.
QString cssFamily(const QString& family);

// A data URL that stands in the sink already.
struct WrittenURL {
  qint64 position;
  qint64 length;
};

// Writes the asset's bytes as a data URL. None if they can't be read; what was written by then is
// the caller's to take back.
std::optional<WrittenURL> writeDataURL(const AssetRef& asset, const PageSource& source,
                                       PageSink& sink);

// Writes that URL once more.
inline PageSink& operator<<(PageSink& sink, const WrittenURL& url) {
  sink.repeat(url.position, url.length);
  return sink;
}

// Writes `head` and then the asset's data URL, or neither.
std::optional<WrittenURL> writeDataURLBehind(const QByteArray& head, const AssetRef& asset,
                                             const PageSource& source, PageSink& sink);

}  // namespace tarnloft
