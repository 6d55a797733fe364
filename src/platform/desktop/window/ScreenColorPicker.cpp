#include "platform/desktop/window/ScreenColorPicker.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QScreen>

#include <utility>

namespace tarnloft {
namespace {

// The magnifier: an odd number of pixels a side, each drawn as a square of so many points.
constexpr int loupePixels = 15;
constexpr int pointsPerPixel = 9;
constexpr int loupeSide = loupePixels * pointsPerPixel;

SampledColor sampled(QColor color) {
  return {double(color.redF()), double(color.greenF()), double(color.blueF())};
}

}  // namespace

class ScreenColorPicker::Cover : public QRasterWindow {
 public:
  Cover(QScreen* screen, ScreenColorPicker& picker)
      : picker_(picker), picture_(screen->grabWindow(0).toImage()) {
    setScreen(screen);
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
             Qt::BypassWindowManagerHint);
    setCursor(Qt::BlankCursor);
    setGeometry(screen->geometry());
    pointer_ = mapFromGlobal(QCursor::pos(screen));
  }

  void begin() {
    show();
    requestActivate();
    // A window that no window manager knows gets no key but by holding the keyboard.
    setKeyboardGrabEnabled(true);
    setMouseGrabEnabled(true);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.drawImage(QRect(QPoint(0, 0), size()), picture_);
    if (!geometry().contains(QCursor::pos())) return;
    drawLoupe(painter);
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    pointer_ = event->position();
    update();
  }
  void mousePressEvent(QMouseEvent* event) override {
    pointer_ = event->position();
    if (event->button() == Qt::LeftButton)
      picker_.finish(sampled(pixelColor(pixelAt(pointer_))));
    else
      picker_.finish(std::nullopt);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape) picker_.finish(std::nullopt);
  }

 private:
  // The picture has the screen's real pixels, of which one point may hold several.
  QPoint pixelAt(QPointF point) const {
    return {int(point.x() * picture_.width() / qMax(1, width())),
            int(point.y() * picture_.height() / qMax(1, height()))};
  }
  QColor pixelColor(QPoint pixel) const {
    return picture_.valid(pixel) ? picture_.pixelColor(pixel) : QColor(Qt::black);
  }

  void drawLoupe(QPainter& painter) const {
    const QPoint center = pixelAt(pointer_);
    const QRectF frame(pointer_.x() - loupeSide / 2.0, pointer_.y() - loupeSide / 2.0, loupeSide,
                       loupeSide);
    QPainterPath circle;
    circle.addEllipse(frame);
    painter.save();
    painter.setClipPath(circle);
    for (int y = 0; y < loupePixels; ++y) {
      for (int x = 0; x < loupePixels; ++x) {
        const QPoint pixel = center + QPoint(x - loupePixels / 2, y - loupePixels / 2);
        painter.fillRect(QRectF(frame.left() + x * pointsPerPixel, frame.top() + y * pointsPerPixel,
                                pointsPerPixel, pointsPerPixel),
                         pixelColor(pixel));
      }
    }
    painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    drawRing(painter, frame);
    const double half = pointsPerPixel / 2.0;
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(
        QRectF(pointer_.x() - half, pointer_.y() - half, pointsPerPixel, pointsPerPixel));
  }

  static void drawRing(QPainter& painter, const QRectF& frame) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0, 0, 0, 90), 5));
    painter.drawEllipse(frame);
    painter.setPen(QPen(Qt::white, 3));
    painter.drawEllipse(frame);
  }

  ScreenColorPicker& picker_;
  const QImage picture_;
  QPointF pointer_;
};

bool ScreenColorPicker::isAvailable() {
  return QGuiApplication::platformName() == QLatin1String("xcb");
}

ScreenColorPicker::ScreenColorPicker(Done done) : done_(std::move(done)) {
  // All pictures are taken before the first cover could be in one of them.
  for (QScreen* screen : QGuiApplication::screens()) {
    covers_.push_back(std::make_unique<Cover>(screen, *this));
  }
  for (const auto& cover : covers_) cover->begin();
}

ScreenColorPicker::~ScreenColorPicker() = default;

void ScreenColorPicker::finish(std::optional<SampledColor> color) {
  if (!done_) return;
  for (const auto& cover : covers_) cover->hide();
  std::exchange(done_, {})(color);  // may destroy the picker
}

}  // namespace tarnloft
