#pragma once

#include "platform/Appearance.h"
#include "platform/desktop/window/PortalSettings.h"

#include <QObject>
#include <QPalette>

#include <chrono>
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
  bool isDark() const { return dark_; }

  // Waits for what the portal tells, at most so long.
  void settle(std::chrono::milliseconds patience) { settings_.settle(patience); }

  // Has what the toolkit draws by itself, such as dialogs and on some desktops the title bar, in
  // these colours, which are as dark as `isDark` tells; unless the desktop's own are so already.
  void setColors(const QPalette& palette);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void darkChanged();

 private:
  void update();

  AppearanceOverride override_ = AppearanceOverride::none;
  std::optional<bool> portalDark_;  // none while the portal has no opinion
  bool dark_ = false;
  bool hasOwnColors_ = false;
  PortalSettings settings_;
};

}  // namespace tarnloft
