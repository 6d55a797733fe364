#include "platform/desktop/window/DesktopStatusItem.h"

namespace tarnloft {

void DesktopStatusItem::install(const QIcon& icon, const QString& toolTip,
                                std::function<void()> clicked, std::vector<Command> menu) {
  menu_ = std::make_unique<QMenu>();
  for (Command& command : menu) menu_->addAction(command.text, std::move(command.run));
  icon_ = std::make_unique<QSystemTrayIcon>(icon);
  icon_->setToolTip(toolTip);
  icon_->setContextMenu(menu_.get());
  QObject::connect(icon_.get(), &QSystemTrayIcon::activated, icon_.get(),
                   [clicked = std::move(clicked)](QSystemTrayIcon::ActivationReason reason) {
                     if (reason == QSystemTrayIcon::Trigger) clicked();
                   });
  icon_->show();
}

bool DesktopStatusItem::isInTray() const {
  return icon_ && QSystemTrayIcon::isSystemTrayAvailable();
}

}  // namespace tarnloft
