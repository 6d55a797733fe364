#include "settings/SettingsWindow.h"

#include <QQuickWindow>
#include <QScreen>

#include <algorithm>

namespace tarnloft {
namespace {

const auto url = QStringLiteral("qrc:/qt-project.org/imports/TarnLoft/Settings/SettingsWindow.qml");

constexpr int frameRoom = 60;  // for the desktop's own at both ends of the window

}  // namespace

SettingsWindow::SettingsWindow(QQmlEngine& engine, const SettingsServices& services)
    : services_(services), component_(&engine) {}

// Before what it shows.
SettingsWindow::~SettingsWindow() { window_.reset(); }

void SettingsWindow::prepare() {
  if (component_.isNull()) component_.loadUrl(QUrl(url), QQmlComponent::Asynchronous);
}

void SettingsWindow::open(const QWindow* over) {
  if (!window_) {
    if (!make()) return;
    if (over && over->isVisible()) place(*over);
  } else if (window_->windowStates() & Qt::WindowMinimized) {
    window_->showNormal();
  }
  window_->show();
  window_->raise();
  window_->requestActivate();
}

void SettingsWindow::openAtUpdates(const QWindow* over) {
  open(over);
  if (window_) QMetaObject::invokeMethod(window_.get(), "showUpdates");
}

bool SettingsWindow::make() {
  auto model = std::make_unique<SettingsModel>(services_);
  if (!component_.isReady()) component_.loadUrl(QUrl(url), QQmlComponent::PreferSynchronous);
  std::unique_ptr<QObject> made(component_.createWithInitialProperties(
      {{QStringLiteral("model"), QVariant::fromValue(model.get())}}));
  window_.reset(qobject_cast<QQuickWindow*>(made.get()));
  if (!window_) {
    qCritical("%s", qPrintable(component_.errorString()));
    return false;
  }
  (void)made.release();
  model_ = std::move(model);
  // Behind the event, which still uses the window.
  connect(window_.get(), &QQuickWindow::visibleChanged, this, &SettingsWindow::close,
          Qt::QueuedConnection);
  return true;
}

void SettingsWindow::place(const QWindow& over) {
  const QRect room = over.screen()->availableGeometry();
  window_->setScreen(over.screen());
  window_->resize(window_->width(), std::min(window_->height(), room.height() - frameRoom));
  QRect frame({}, window_->size());
  frame.moveCenter(over.geometry().center());
  frame.moveTop(std::max(frame.top(), room.top() + frameRoom / 2));
  window_->setFramePosition(frame.topLeft());
}

void SettingsWindow::close() {
  if (!window_ || window_->isVisible()) return;
  window_.reset();
  model_.reset();
  emit closed();
}

}  // namespace tarnloft
