#pragma once

#include "platform/StatusItem.h"
#include "platform/desktop/window/TrayHost.h"

#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>
#include <optional>

namespace tarnloft {

// Needs a QApplication.
class DesktopStatusItem : public StatusItem {
 public:
  void install(const QIcon& icon, const QString& toolTip, std::function<void()> clicked,
               std::vector<Command> menu) override;
  void closeMenu() override;
  void followTray(std::function<void()> changed) override { trayChanged_ = std::move(changed); }
  bool isInTray() const override;
  QRect place() const override { return icon_ ? icon_->geometry() : QRect(); }

 private:
  void showInTray();

  struct Look {
    QIcon icon;
    QString toolTip;
    std::function<void()> clicked;
    std::vector<Command> menu;
  };

  Look look_;
  std::function<void()> trayChanged_;
  std::optional<TrayHost> host_;
  std::unique_ptr<QMenu> menu_;
  std::unique_ptr<QSystemTrayIcon> icon_;  // uses the menu
};

}  // namespace tarnloft
