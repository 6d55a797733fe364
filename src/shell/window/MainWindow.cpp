#include "shell/window/MainWindow.h"

#include "controls/drawing/SymbolGlyphs.h"
#include "controls/loading/DeferredEnds.h"
#include "controls/loading/ViewLoading.h"
#include "controls/theme/Theme.h"
#include "controls/theme/Typography.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>

namespace tarnloft {
namespace {

// Properties of the window.
const auto initialSidebarWidth = QStringLiteral("initialSidebarWidth");
constexpr auto sidebarWidth = "sidebarWidth";
constexpr auto late = "late";

QUrl viewURL(const char* file) {
  return QUrl(QStringLiteral("qrc:/qt-project.org/imports/TarnLoft/Shell/") + QLatin1String(file));
}

QList<QRect> screenRooms() {
  QList<QRect> rooms;
  for (const QScreen* screen : QGuiApplication::screens()) rooms << screen->availableGeometry();
  return rooms;
}

// Those of the sidebar, while its views load.
void loadFonts() {
  // First, because it registers its font.
  for (const int size : {16, 14}) {
    loadFont(SymbolGlyphs::font(size, QFont::Normal), SymbolGlyphs::text(QStringLiteral("plus")));
  }
  for (const auto& [size, weight] : {std::pair(13, QFont::Normal),
                                     {12, QFont::Normal},
                                     {13, QFont::DemiBold},
                                     {11, QFont::DemiBold}}) {
    loadFont(interfaceFont(size, weight));
    ViewLoading::answer();
  }
}

}  // namespace

MainWindow::MainWindow(QQmlEngine& engine, const WorkspaceServices& services, Preferences& state,
                       UpdaterViewModel* updater)
    : engine_(engine), services_(services), state_(state), updater_(updater), lateViews_(&engine) {
  settled_.setSingleShot(true);
  settled_.setInterval(400);
  connect(&settled_, &QTimer::timeout, this, &MainWindow::remember);
  connect(&Theme::of(engine), &Theme::changed, this, &MainWindow::followAppearance);
  connect(&lateViews_, &QQmlComponent::statusChanged, this, &MainWindow::makeLateViews);
}

// Its views go before what they show, and before the services. Those that a repeater has shown are
// left to the application, for a turn of the event loop that may not come.
MainWindow::~MainWindow() {
  window_.reset();
  endDeferred();
  const auto left = [] {
    return qGuiApp->findChild<QQuickItem*>(QString(), Qt::FindDirectChildrenOnly);
  };
  while (QQuickItem* const view = left()) delete view;  // which may leave others
}

QUrl MainWindow::url() { return viewURL("MainWindow.qml"); }

bool MainWindow::open() {
  if (window_) return true;
  if (!make()) return false;
  window_->show();
  return true;
}

bool MainWindow::make() {
  auto content = std::make_unique<ContentModel>(services_, updater_);
  loadFonts();
  QQmlComponent component(&engine_, url());
  const WindowState state = WindowState::read(state_).fitting(screenRooms());
  std::unique_ptr<QObject> made(component.createWithInitialProperties(
      {{QStringLiteral("content"), QVariant::fromValue(content.get())},
       {initialSidebarWidth, state.sidebarWidth}}));
  window_.reset(qobject_cast<QQuickWindow*>(made.release()));
  if (!window_) {
    qCritical("%s", qPrintable(component.errorString()));
    return false;
  }
  content_ = std::move(content);
  connect(content_->commands(), &ShellCommands::settingsRequested, this,
          &MainWindow::settingsRequested);
  connect(content_->commands(), &ShellCommands::updateCheckRequested, this,
          &MainWindow::updateCheckRequested);
  isShown_ = false;
  const auto shown = [this] {
    isShown_ = true;
    if (content_) content_->followFirstFrame();
    if (lateViews_.isNull()) {
      lateViews_.loadUrl(viewURL("MainWindowLateViews.qml"), QQmlComponent::Asynchronous);
    }
    makeLateViews();
  };
  connect(window_.get(), &QQuickWindow::frameSwapped, this, shown,
          Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
  followAppearance();
  place(state);
  window_->installEventFilter(this);
  return true;
}

void MainWindow::makeLateViews() {
  if (!window_ || !isShown_ || lateViews_.isLoading()) return;
  if (window_->property(late).value<QObject*>()) return;
  QObject* const views = lateViews_.createWithInitialProperties(
      {{QStringLiteral("content"), QVariant::fromValue(content_.get())}});
  if (!views) return qCritical("%s", qPrintable(lateViews_.errorString()));
  views->setParent(window_.get());
  window_->setProperty(late, QVariant::fromValue(views));
}

void MainWindow::place(const WindowState& state) {
  window_->setMinimumSize(WindowState::minimumSize);
  window_->resize(state.size);
  if (state.position) window_->setFramePosition(*state.position);
  if (state.maximized == Maximized::yes) window_->setWindowStates(Qt::WindowMaximized);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange: settled_.start(); break;
    case QEvent::Close:
      if (!mayClose_()) {
        event->ignore();
        return true;
      }
      remember();  // a hidden window has no frame
      // Behind the event's own handling, which still uses the window.
      QMetaObject::invokeMethod(this, &MainWindow::close, Qt::QueuedConnection);
      break;
    default: break;
  }
  return QObject::eventFilter(watched, event);
}

// The size of a maximised window is the screen's; the one that it returns to was kept before.
void MainWindow::remember() {
  if (!window_ || window_->windowStates() & Qt::WindowMinimized) return;
  WindowState state = WindowState::read(state_);
  state.sidebarWidth = window_->property(sidebarWidth).toDouble();
  state.maximized = window_->windowStates() & Qt::WindowMaximized ? Maximized::yes : Maximized::no;
  if (window_->windowStates() == Qt::WindowNoState) {
    state.position = window_->framePosition();
    state.size = window_->size();
  }
  state.write(state_);
}

void MainWindow::followAppearance() {
  if (!content_) return;
  content_->sidebar()->rows()->setAppearance(
      Theme::of(engine_).isDark() ? ColorUtil::Appearance::dark : ColorUtil::Appearance::light);
}

void MainWindow::close() {
  if (!window_ || window_->isVisible()) return;
  settled_.stop();
  window_.reset();
  // Views may go in turns of their own.
  ContentModel* const content = content_.release();
  content->setParent(this);  // which takes it along if no turn comes any more
  QTimer::singleShot(0, content, &QObject::deleteLater);
  emit closed();
}

}  // namespace tarnloft
