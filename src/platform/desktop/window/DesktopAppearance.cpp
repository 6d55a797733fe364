#include "platform/desktop/window/DesktopAppearance.h"

#include <QEvent>
#include <QGuiApplication>

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

}  // namespace

DesktopAppearance::DesktopAppearance(QObject* parent) : QObject(parent), m_dark(paletteIsDark()) {
  qGuiApp->installEventFilter(this);
  m_settings.follow(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                    [this](const QVariant& value) {
                      m_portalDark = darkOf(value);
                      update();
                    });
}

void DesktopAppearance::setOverride(AppearanceOverride value) {
  m_override = value;
  update();
}

bool DesktopAppearance::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) update();
  return QObject::eventFilter(watched, event);
}

void DesktopAppearance::setColors(const QPalette& palette) {
  if (!m_hasOwnColors && paletteIsDark() == m_dark) return;
  m_hasOwnColors = true;
  QGuiApplication::setPalette(palette);
}

void DesktopAppearance::update() {
  // To see the desktop's own, where they decide.
  if (m_hasOwnColors && m_override == AppearanceOverride::none && !m_portalDark) {
    m_hasOwnColors = false;
    QGuiApplication::setPalette({});
  }
  const bool dark = m_override == AppearanceOverride::none ? m_portalDark.value_or(paletteIsDark())
                                                           : m_override == AppearanceOverride::dark;
  if (dark == m_dark) return;
  m_dark = dark;
  emit darkChanged();
}

}  // namespace tarnloft
