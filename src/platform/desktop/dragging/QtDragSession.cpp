#include "platform/desktop/dragging/QtDragSession.h"

#include "platform/desktop/dragging/DragData.h"
#include "platform/desktop/window/ScreenComposition.h"

#include <QBitmap>
#include <QCoreApplication>
#include <QDrag>
#include <QPainter>
#include <QPixmap>
#include <QPlatformSurfaceEvent>
#include <QWindow>

#include <optional>

namespace tarnloft {
namespace {

QImage thinned(const QImage& picture) {
  constexpr double opacity = 0.85;
  QImage result = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&result);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  painter.fillRect(result.rect(), QColor::fromRgbF(0, 0, 0, opacity));
  return result;
}

// In its own colours up to the edge, where the toolkit would mix in those of its ground.
QImage solid(const QImage& picture) {
  return picture.convertToFormat(QImage::Format_ARGB32).convertToFormat(QImage::Format_RGB32);
}

// Cuts the window that carries a drag's picture to the picture's own shape. The toolkit does so
// before there is a window that could be cut, and in the wrong unit.
class PictureCut : public QObject {
 public:
  explicit PictureCut(const QImage& picture) {
    const QImage points = picture.scaled(picture.deviceIndependentSize().toSize());
    shape_ = QRegion(QBitmap::fromImage(points.createAlphaMask()));
    QCoreApplication::instance()->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::PlatformSurface && watched->inherits("QShapedPixmapWindow") &&
        static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceCreated) {
      static_cast<QWindow*>(watched)->setMask(shape_);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QRegion shape_;
};

}  // namespace

void QtDragSession::drag(const QList<DragItem>& items, const DragLook& look) {
  auto* drag = new QDrag(this);  // the window system ends its life
  drag->setMimeData(new DragData(items));
  std::optional<PictureCut> cut;
  if (!look.picture.isNull()) {
    const bool isComposed = isScreenComposed();
    if (!isComposed) cut.emplace(look.picture);
    drag->setPixmap(QPixmap::fromImage(isComposed ? thinned(look.picture) : solid(look.picture)));
  }
  drag->setHotSpot(look.hotSpot);
  drag->exec(Qt::CopyAction);
}

}  // namespace tarnloft
