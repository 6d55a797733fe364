#include "settings/SettingsWindow.h"

#include <QQuickWindow>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

const auto url = QStringLiteral("qrc:/qt-project.org/imports/TarnLoft/Settings/SettingsWindow.qml");

constexpr auto remaking = 1s;  // behind a closing, for the next opening
constexpr int frameRoom = 60;  // for the desktop's own at both ends of the window

}  // namespace

SettingsWindow::SettingsWindow(QQmlEngine& engine, const SettingsServices& services)
    : services_(services), component_(&engine) {
  connect(&component_, &QQmlComponent::statusChanged, this, &SettingsWindow::makeAhead,
          Qt::QueuedConnection);
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::prepare() {
  if (component_.isNull()) component_.loadUrl(QUrl(url), QQmlComponent::Asynchronous);
}

void SettingsWindow::makeAhead() {
  if (shown_ || ahead_ || !component_.isReady()) return;
  ahead_ = make();
  // Its fonts, glyphs and nodes. The other scene graphs would begin anew for the screen.
  const bool keeps = QQuickWindow::sceneGraphBackend() == QLatin1String("software");
  if (ahead_ && keeps) (void)ahead_->window->grabWindow();
}

void SettingsWindow::open(const QWindow* over) {
  if (!shown_) {
    shown_ = ahead_ ? std::move(ahead_) : make();
    if (!shown_) return;
    shown_->model->followDesktop();
    // Behind the event, which still uses the window.
    connect(window(), &QQuickWindow::visibleChanged, this, &SettingsWindow::close,
            Qt::QueuedConnection);
    if (over && over->isVisible()) place(*over);
  } else if (window()->windowStates() & Qt::WindowMinimized) {
    window()->showNormal();
  }
  window()->show();
  window()->raise();
  window()->requestActivate();
}

void SettingsWindow::openAtUpdates(const QWindow* over) {
  open(over);
  if (shown_) QMetaObject::invokeMethod(window(), "showUpdates");
}

std::unique_ptr<SettingsWindow::View> SettingsWindow::make() {
  auto view = std::make_unique<View>();
  view->model = std::make_unique<SettingsModel>(services_);
  if (!component_.isReady()) component_.loadUrl(QUrl(url), QQmlComponent::PreferSynchronous);
  std::unique_ptr<QObject> made(component_.createWithInitialProperties(
      {{QStringLiteral("model"), QVariant::fromValue(view->model.get())}}));
  view->window.reset(qobject_cast<QQuickWindow*>(made.get()));
  if (!view->window) {
    qCritical("%s", qPrintable(component_.errorString()));
    return nullptr;
  }
  (void)made.release();
  return view;
}

void SettingsWindow::place(const QWindow& over) {
  const QRect room = over.screen()->availableGeometry();
  QQuickWindow& window = *shown_->window;
  window.setScreen(over.screen());
  window.resize(window.width(), std::min(window.height(), room.height() - frameRoom));
  QRect frame({}, window.size());
  frame.moveCenter(over.geometry().center());
  frame.moveTop(std::max(frame.top(), room.top() + frameRoom / 2));
  window.setFramePosition(frame.topLeft());
}

void SettingsWindow::close() {
  if (!shown_ || window()->isVisible()) return;
  shown_.reset();
  QTimer::singleShot(remaking, this, &SettingsWindow::makeAhead);
  emit closed();
}

}  // namespace tarnloft
