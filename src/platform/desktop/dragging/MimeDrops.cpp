#include "platform/desktop/dragging/MimeDrops.h"

#include "platform/desktop/dragging/DragData.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QMimeDatabase>
#include <QStringDecoder>
#include <QSysInfo>
#include <QUrl>

#include <algorithm>
#include <chrono>
#include <future>
#include <limits>
#include <memory>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

constexpr qint64 largest = std::numeric_limits<qint64>::max();

using Done = std::function<void(std::optional<QByteArray>)>;
using PathDone = std::function<void(std::optional<QString>)>;

const QString toolkitImage = QStringLiteral("application/x-qt-image");
// How browsers offer a picture of a page: its bytes, for a receiver that would save them.
const QString plainBytes = QStringLiteral("application/octet-stream");
const QString directSave = QStringLiteral("XdndDirectSave0");
const QString webAddress = QStringLiteral("text/x-moz-url");  // and a title, in UTF-16

// A file of any program.
class FileThing : public DroppedThing {
 public:
  explicit FileThing(QString path) : path_(std::move(path)) {}

  bool conforms(const QString& type) const override { return type == DropType::fileURL; }
  void loadURL(const PathDone& done) override { done(path_); }
  void loadData(const QString& /*type*/, const Done& done) override { done(std::nullopt); }
  QString suggestedName() const override { return QFileInfo(path_).fileName(); }

 private:
  QString path_;
};

// A thing of a drag of this process.
class OwnThing : public DroppedThing {
 public:
  explicit OwnThing(DragItem item) : item_(std::move(item)) {}

  bool conforms(const QString& type) const override {
    return (type == DropType::fileURL && item_.file) ||
           (type == DropType::image && item_.makeTiff) ||
           (item_.payload && type == item_.payload->type);
  }
  void loadURL(const PathDone& done) override { done(item_.file); }
  void loadData(const QString& type, const Done& done) override {
    if (item_.payload && type == item_.payload->type) return done(item_.payload->bytes);
    done(type == DropType::image && item_.makeTiff ? item_.makeTiff(largest) : std::nullopt);
  }
  QString suggestedName() const override { return item_.suggestedName; }

 private:
  DragItem item_;
};

bool isPicture(const QByteArray& bytes) {
  return QMimeDatabase().mimeTypeForData(bytes).name().startsWith(QLatin1String("image/"));
}

// Picture data without a file, such as a picture of a page in a browser.
class ImageThing : public DroppedThing {
 public:
  ImageThing(const QMimeData& drop, QString format, QString name, QThreadPool& workers)
      : drop_(drop), format_(std::move(format)), name_(std::move(name)), workers_(workers) {}

  bool conforms(const QString& type) const override { return type == DropType::image; }
  void loadURL(const PathDone& done) override { done(std::nullopt); }
  void loadData(const QString& type, const Done& done) override {
    if (type != DropType::image) return done(std::nullopt);
    if (format_ == toolkitImage) return encode(drop_.imageData().value<QImage>(), done);
    const QByteArray bytes = drop_.data(format_);
    const bool isTaken = !bytes.isEmpty() && (format_ != plainBytes || isPicture(bytes));
    done(isTaken ? std::optional(bytes) : std::nullopt);
  }
  QString suggestedName() const override { return name_; }

 private:
  void encode(const QImage& image, const Done& done) {
    workers_.start([image, done] {
      QByteArray bytes;
      QBuffer buffer(&bytes);
      const bool written = image.save(&buffer, "PNG");
      const auto result = written ? std::optional(bytes) : std::nullopt;
      QMetaObject::invokeMethod(
          QCoreApplication::instance(), [done, result] { done(result); }, Qt::QueuedConnection);
    });
  }

  const QMimeData& drop_;
  QString format_;
  QString name_;
  QThreadPool& workers_;
};

// The format to ask a picture for: PNG where it is offered, which loses nothing. None without one.
std::optional<QString> imageFormat(const QStringList& formats) {
  const QString png = QStringLiteral("image/png");
  if (formats.contains(png)) return png;
  const auto found = std::find_if(formats.begin(), formats.end(), [](const QString& format) {
    return format.startsWith(QLatin1String("image/"));
  });
  if (found != formats.end()) return *found;
  if (formats.contains(toolkitImage)) return toolkitImage;
  const bool isSavable = formats.contains(directSave) && formats.contains(plainBytes);
  return isSavable ? std::optional(plainBytes) : std::nullopt;
}

// Some programs put this machine's name into the address.
std::optional<QString> localPath(const QUrl& url) {
  const QString host = url.host();
  const bool here = host.isEmpty() || host == QLatin1String("localhost") ||
                    host == QSysInfo::machineHostName().toLower();
  if (!url.isLocalFile() || !here) return std::nullopt;
  QUrl plain = url;
  plain.setHost(QString());
  return plain.toLocalFile();
}

std::optional<QUrl> addressOf(const QMimeData& drop) {
  if (const QList<QUrl> urls = drop.urls(); !urls.isEmpty()) return urls.first();
  if (!drop.hasFormat(webAddress)) return std::nullopt;
  const QByteArray bytes = drop.data(webAddress);
  QStringDecoder decode(QStringDecoder::Utf16LE);
  const QString lines = decode(bytes);
  return QUrl(lines.section(QLatin1Char('\n'), 0, 0));
}

// A picture from the web is named by its address.
QString nameOnTheWeb(const QMimeData& drop) {
  const auto url = addressOf(drop);
  const bool isOnTheWeb = url && url->scheme().startsWith(QLatin1String("http"));
  return isOnTheWeb ? url->fileName(QUrl::FullyDecoded) : QString();
}

DroppedThings ownThings(const QList<DragItem>& items) {
  DroppedThings things;
  for (const DragItem& item : items) things << std::make_shared<OwnThing>(item);
  return things;
}

}  // namespace

bool MimeDrops::offers(const QMimeData& drag, const QString& type) const {
  if (const DragData* own = DragData::of(drag)) {
    const auto& items = own->items();
    return std::any_of(items.begin(), items.end(),
                       [&](const DragItem& item) { return OwnThing(item).conforms(type); });
  }
  if (type == DropType::fileURL) return drag.hasFormat(DropType::fileURL) && holdsFile(drag.urls());
  return type == DropType::image && imageFormat(drag.formats());
}

// A folder can't be brought in. The disk may be slow, and the drag hovers: what isn't known at once
// counts as a file.
bool MimeDrops::holdsFile(const QList<QUrl>& urls) const {
  QStringList paths;
  for (const QUrl& url : urls) {
    if (const auto path = localPath(url)) paths << *path;
  }
  if (paths.isEmpty()) return false;
  const auto look = std::make_shared<std::packaged_task<bool()>>([paths] {
    return std::ranges::any_of(paths, [](const QString& path) { return !QFileInfo(path).isDir(); });
  });
  auto isFile = look->get_future();
  workers_.start([look] { (*look)(); });
  return isFile.wait_for(50ms) != std::future_status::ready || isFile.get();
}

DroppedThings MimeDrops::things(const QMimeData& drop) const {
  if (const DragData* own = DragData::of(drop)) return ownThings(own->items());
  DroppedThings things;
  const QList<QUrl> urls = drop.urls();
  for (const QUrl& url : urls) {
    if (const auto path = localPath(url)) things << std::make_shared<FileThing>(*path);
  }
  if (!things.isEmpty()) return things;
  if (const auto format = imageFormat(drop.formats())) {
    things << std::make_shared<ImageThing>(drop, *format, nameOnTheWeb(drop), workers_);
  }
  return things;
}

}  // namespace tarnloft
