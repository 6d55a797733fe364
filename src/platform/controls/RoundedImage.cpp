#include "platform/controls/RoundedImage.h"

#include <QImageReader>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QThreadPool>

#include <algorithm>
#include <memory>
#include <utility>

namespace tarnloft {

namespace {

// Where the whole picture stands, in the rectangle's coordinates.
QRectF placed(QSizeF picture, QSizeF rectangle, RoundedImage::FillMode mode) {
  const qreal across = rectangle.width() / picture.width();
  const qreal down = rectangle.height() / picture.height();
  const qreal scale = mode == RoundedImage::Fill ? std::max(across, down) : std::min(across, down);
  const QSizeF size = picture * scale;
  return {QPointF((rectangle.width() - size.width()) / 2, (rectangle.height() - size.height()) / 2),
          size};
}

// The picture scaled into a rectangle of `size` device pixels, with corners of `radius` cut off it.
QImage cutPicture(const QImage& picture, QSize size, qreal radius, RoundedImage::FillMode mode) {
  const QRectF target = placed(picture.size(), size, mode);
  const QImage scaled =
      picture.scaled(target.size().toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QImage result(size, QImage::Format_ARGB32_Premultiplied);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  QBrush brush(scaled);
  brush.setTransform(QTransform::fromTranslate(target.x(), target.y()));
  painter.setBrush(brush);
  const QRectF shown = QRectF(QPointF(), size).intersected(target);
  painter.drawRoundedRect(shown, radius, radius);
  return result;
}

QString localPath(const QUrl& url) {
  return url.scheme() == QLatin1String("qrc") ? QLatin1Char(':') + url.path() : url.toLocalFile();
}

QImage readFile(const QString& path) {
  QImageReader reader(path);
  reader.setAutoTransform(true);
  return reader.read();
}

}  // namespace

RoundedImage::RoundedImage(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

RoundedImage::~RoundedImage() { dropResponse(); }

void RoundedImage::setSource(const QUrl& source) {
  if (source == m_source) return;
  m_source = source;
  emit sourceChanged();
  if (isComponentComplete()) load();
}

void RoundedImage::setRadius(qreal radius) {
  if (radius == m_radius) return;
  m_radius = radius;
  emit radiusChanged();
  cut();
}

void RoundedImage::setFillMode(FillMode mode) {
  if (mode == m_fillMode) return;
  m_fillMode = mode;
  emit fillModeChanged();
  cut();
}

void RoundedImage::componentComplete() {
  QQuickItem::componentComplete();
  load();
}

void RoundedImage::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() != before.size()) cut();
}

void RoundedImage::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) cut();
}

void RoundedImage::load() {
  dropResponse();
  ++m_request;
  m_picture = {};
  cut();
  setStatus(m_source.isEmpty() ? Null : Loading);
  if (m_source.isEmpty()) return;
  if (m_source.scheme() == QLatin1String("image"))
    loadFromProvider(m_source.host(),
                     m_source.toString(QUrl::RemoveScheme | QUrl::RemoveAuthority).mid(1));
  else
    loadInBackground([path = localPath(m_source)] { return readFile(path); });
}

void RoundedImage::loadFromProvider(const QString& name, const QString& id) {
  QQmlImageProviderBase* base = qmlEngine(this) ? qmlEngine(this)->imageProvider(name) : nullptr;
  if (auto* async = dynamic_cast<QQuickAsyncImageProvider*>(base)) {
    m_response = async->requestImageResponse(id, {});
    connect(m_response, &QQuickImageResponse::finished, this,
            [this, request = m_request, response = m_response.data()] {
              const std::unique_ptr<QQuickTextureFactory> factory(response->textureFactory());
              response->deleteLater();
              receive(request, factory ? factory->image() : QImage());
            });
  } else if (auto* provider = dynamic_cast<QQuickImageProvider*>(base)) {
    receive(m_request, provider->requestImage(id, nullptr, {}));
  } else {
    receive(m_request, {});
  }
}

void RoundedImage::loadInBackground(std::function<QImage()> read) {
  QThreadPool::globalInstance()->start(
      [self = QPointer(this), request = m_request, read = std::move(read)] {
        const QImage picture = read();
        QMetaObject::invokeMethod(
            qApp,
            [self, request, picture] {
              if (self) self->receive(request, picture);
            },
            Qt::QueuedConnection);
      });
}

void RoundedImage::receive(quint64 request, const QImage& picture) {
  if (request != m_request) return;
  m_response = nullptr;
  m_picture = picture;
  if (picture.isNull()) setStatus(Error);
  cut();
}

// Cuts anew beside the main thread; what is shown stays until the new cut is there.
void RoundedImage::cut() {
  ++m_cutting;
  const QSize size = (QSizeF(width(), height()) * pixelRatio()).toSize();
  if (m_picture.isNull() || size.isEmpty()) {
    m_cutChanged = !m_cut.isNull();
    m_cut = {};
    update();
    return;
  }
  QThreadPool::globalInstance()->start([self = QPointer(this), cutting = m_cutting, size,
                                        picture = m_picture, radius = m_radius * pixelRatio(),
                                        mode = m_fillMode] {
    const QImage result = cutPicture(picture, size, radius, mode);
    QMetaObject::invokeMethod(
        qApp,
        [self, cutting, result] {
          if (!self || cutting != self->m_cutting) return;
          self->m_cut = result;
          self->m_cutChanged = true;
          self->setStatus(Ready);
          self->update();
        },
        Qt::QueuedConnection);
  });
}

void RoundedImage::dropResponse() {
  if (!m_response) return;
  QQuickImageResponse* response = m_response;
  m_response = nullptr;
  // It lives on until it has finished, as its provider expects.
  disconnect(response, nullptr, this, nullptr);
  connect(response, &QQuickImageResponse::finished, response, &QObject::deleteLater);
  response->cancel();
}

void RoundedImage::setStatus(Status status) {
  if (status == m_status) return;
  m_status = status;
  emit statusChanged();
}

qreal RoundedImage::pixelRatio() const {
  return window() ? window()->effectiveDevicePixelRatio() : 1;
}

QSGNode* RoundedImage::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
  if (m_cut.isNull()) {
    delete node;
    return nullptr;
  }
  auto* image = static_cast<QSGImageNode*>(node);
  if (!image) {
    image = window()->createImageNode();
    image->setOwnsTexture(true);
    m_cutChanged = true;
  }
  if (std::exchange(m_cutChanged, false))
    image->setTexture(
        window()->createTextureFromImage(m_cut, QQuickWindow::TextureHasAlphaChannel));
  image->setFiltering(QSGTexture::Linear);
  image->setRect(0, 0, width(), height());
  return image;
}

}  // namespace tarnloft
