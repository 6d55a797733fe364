#include "quickgrab/panel/QuickGrabPanel.h"

#include "controls/loading/DeferredEnds.h"
#include "quickgrab/panel/PanelPlacement.h"

#include <QBitmap>
#include <QCursor>
#include <QGuiApplication>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>

#include <chrono>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

constexpr int shadowRoom = 30;  // points about the panel
constexpr int cornerRadius = 12;
// A key grabbed from anywhere takes the focus for a moment.
constexpr auto focusPatience = 60ms;
// A drop's receiver may still ask for the file, and its window be in front by then.
constexpr auto fetchPatience = 1000ms;
constexpr auto sameClick = 400ms;

QUrl url() {
  return QUrl(QStringLiteral("qrc:/qt-project.org/imports/TarnLoft/QuickGrab/QuickGrabWindow.qml"));
}

bool isWayland() { return QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

QRegion rounded(const QRect& rect) {
  QBitmap shape(rect.size());
  shape.clear();
  QPainter painter(&shape);
  painter.setBrush(Qt::color1);
  painter.setPen(Qt::NoPen);
  painter.drawRoundedRect(QRectF(QPointF(), QSizeF(rect.size())), cornerRadius, cornerRadius);
  painter.end();
  return QRegion(shape).translated(rect.topLeft());
}

}  // namespace

QuickGrabPanel::QuickGrabPanel(std::function<QQmlEngine&()> engine,
                               const QuickGrabServices& services,
                               std::function<bool()> isScreenComposed)
    : engine_(std::move(engine)), isScreenComposed_(std::move(isScreenComposed)), grab_(services) {
  connect(&grab_, &QuickGrab::closeRequested, this, &QuickGrabPanel::close);
  connect(&grab_, &QuickGrab::dragEnded, this, [this] {
    if (isShown() && !window_->isActive()) focusLoss_.start(fetchPatience);
  });
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &QuickGrabPanel::close);
  focusLoss_.setSingleShot(true);
  connect(&focusLoss_, &QTimer::timeout, this, &QuickGrabPanel::checkFocus);
}

// Its views go before what they show.
QuickGrabPanel::~QuickGrabPanel() {
  window_.reset();
  endDeferred();
}

void QuickGrabPanel::prepare() {
  if (window_ || component_) return;
  component_ = std::make_unique<QQmlComponent>(&engine_(), url(), QQmlComponent::Asynchronous);
  connect(component_.get(), &QQmlComponent::statusChanged, this, &QuickGrabPanel::makeAhead,
          Qt::QueuedConnection);
}

// With what it will show, so that the first key finds it as a later one does.
void QuickGrabPanel::makeAhead() {
  if (window_ || !component_ || !component_->isReady()) return;
  grab_.setActive(true);
  if (make()) {
    place({});
    // Its fonts, glyphs and nodes. The other scene graphs would begin anew for the screen.
    if (QQuickWindow::sceneGraphBackend() == QLatin1String("software")) (void)window_->grabWindow();
  }
  grab_.setActive(false);
}

bool QuickGrabPanel::make() {
  if (window_) return true;
  QQmlComponent component(&engine_(), url());
  std::unique_ptr<QObject> made(component.createWithInitialProperties(
      {{QStringLiteral("grab"), QVariant::fromValue(&grab_)}}));
  window_.reset(qobject_cast<QQuickWindow*>(made.release()));
  component_.reset();
  if (!window_) {
    qCritical("%s", qPrintable(component.errorString()));
    return false;
  }
  connect(window_.get(), &QQuickWindow::activeChanged, this, &QuickGrabPanel::followFocus);
  return true;
}

void QuickGrabPanel::show(const QRect& anchor) {
  grab_.setActive(true);
  if (!make()) return;
  place(anchor);
  hadFocus_ = false;
  QMetaObject::invokeMethod(window_.get(), "begin");
  window_->show();
  window_->raise();
  window_->requestActivate();
}

void QuickGrabPanel::place(const QRect& anchor) {
  const QPoint pointer = QCursor::pos();
  const QRect beside = anchor.isEmpty() ? QRect(pointer, QSize(1, 1)) : anchor;
  QScreen* screen = QGuiApplication::screenAt(beside.center());
  if (!screen) screen = QGuiApplication::primaryScreen();
  if (!screen) return;
  const int rim = isScreenComposed_() ? shadowRoom : 0;
  const QSize whole = size + QSize(2 * rim, 2 * rim);
  window_->setProperty("rim", rim);
  window_->setScreen(screen);
  window_->setMinimumSize(whole);  // one that may be resized is tiled by some desktops
  window_->setMaximumSize(whole);
  window_->resize(whole);
  window_->contentItem()->setSize(whole);  // else only once the window is there
  window_->setPosition(panelPlace(beside, size, screen->availableGeometry()) - QPoint(rim, rim));
  // There it tells where clicks are the panel's, elsewhere what of the window is there at all.
  const QRect panel(QPoint(rim, rim), size);
  if (isWayland()) {
    window_->setMask(panel);
  } else {
    window_->setMask(rim > 0 ? QRegion() : rounded(panel));
  }
}

void QuickGrabPanel::close() {
  focusLoss_.stop();
  if (!isShown()) return;
  window_->hide();
  grab_.setActive(false);
}

void QuickGrabPanel::toggle(By by, const QRect& anchor) {
  if (grab_.isDragging()) return;
  if (isShown()) return close();
  if (by == By::click && lostFocus_.isValid() && lostFocus_.elapsed() < sameClick.count()) {
    return lostFocus_.invalidate();
  }
  show(anchor);
}

void QuickGrabPanel::followFocus() {
  if (!isShown()) return;
  if (window_->isActive()) {
    hadFocus_ = true;
    focusLoss_.stop();
  } else if (hadFocus_) {
    focusLoss_.start(focusPatience);
  }
}

void QuickGrabPanel::checkFocus() {
  if (!isShown() || window_->isActive() || grab_.isDragging()) return;
  close();
  lostFocus_.start();
}

}  // namespace tarnloft
