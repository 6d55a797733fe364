#pragma once

#include "platform/StatusItem.h"

#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>

namespace tarnloft {

// Needs a QApplication.
class DesktopStatusItem : public StatusItem {
 public:
  void install(const QIcon& icon, const QString& toolTip, std::function<void()> clicked,
               std::vector<Command> menu) override;
  bool isInTray() const override;

 private:
  std::unique_ptr<QMenu> menu_;
  std::unique_ptr<QSystemTrayIcon> icon_;  // uses the menu
};

}  // namespace tarnloft
