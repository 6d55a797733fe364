#pragma once

#include "platform/Appearance.h"
#include "platform/desktop/window/PortalSettings.h"

#include <QObject>

#include <optional>

namespace tarnloft {

// Light or dark as the user wants it here, else as the desktop has it: by its settings portal, and
// where that doesn't tell, by the colours that the desktop gives to programs. Main thread only;
// needs a QGuiApplication.
class DesktopAppearance : public QObject, public Appearance {
  Q_OBJECT
  Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)

 public:
  explicit DesktopAppearance(QObject* parent = nullptr);

  void setOverride(AppearanceOverride value) override;
  bool isDark() const { return m_dark; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void darkChanged();

 private:
  void update();

  AppearanceOverride m_override = AppearanceOverride::none;
  std::optional<bool> m_portalDark;  // none while the portal has no opinion
  bool m_dark = false;
  PortalSettings m_settings;
};

}  // namespace tarnloft
