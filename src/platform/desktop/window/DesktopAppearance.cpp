#include "platform/desktop/window/DesktopAppearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace tarnloft {

namespace {

// The portal's values: 0 no preference, 1 dark, 2 light.
std::optional<bool> darkOf(const QVariant& value) {
  switch (value.toUInt()) {
    case 1: return true;
    case 2: return false;
    default: return std::nullopt;
  }
}

bool paletteIsDark() {
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightnessF() <
         palette.color(QPalette::WindowText).lightnessF();
}

// On Wayland, where the desktop leaves it to programs to draw title bars, the toolkit reads their
// colours when it makes one.
void renewTitleBars() {
  if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) return;
  for (QWindow* const window : QGuiApplication::topLevelWindows()) {
    if (!window->isVisible() || window->frameMargins().top() == 0) continue;
    window->setFlag(Qt::FramelessWindowHint, true);
    window->setFlag(Qt::FramelessWindowHint, false);
  }
}

}  // namespace

DesktopAppearance::DesktopAppearance(QObject* parent) : QObject(parent), dark_(paletteIsDark()) {
  qGuiApp->installEventFilter(this);
  settings_.follow(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                   [this](const QVariant& value) {
                     portalDark_ = darkOf(value);
                     update();
                   });
}

void DesktopAppearance::setOverride(AppearanceOverride value) {
  override_ = value;
  update();
}

bool DesktopAppearance::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) update();
  return QObject::eventFilter(watched, event);
}

void DesktopAppearance::setColors(const QPalette& palette) {
  if (!hasOwnColors_ && paletteIsDark() == dark_) return;
  hasOwnColors_ = true;
  QGuiApplication::setPalette(palette);
  renewTitleBars();
}

void DesktopAppearance::update() {
  // To see the desktop's own, where they decide.
  if (hasOwnColors_ && override_ == AppearanceOverride::none && !portalDark_) {
    hasOwnColors_ = false;
    QGuiApplication::setPalette({});
  }
  const bool dark = override_ == AppearanceOverride::none ? portalDark_.value_or(paletteIsDark())
                                                          : override_ == AppearanceOverride::dark;
  if (dark == dark_) return;
  dark_ = dark;
  emit darkChanged();
}

}  // namespace tarnloft
