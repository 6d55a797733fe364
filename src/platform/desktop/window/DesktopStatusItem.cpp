#include "platform/desktop/window/DesktopStatusItem.h"

namespace tarnloft {

void DesktopStatusItem::install(const QIcon& icon, const QString& toolTip,
                                std::function<void()> clicked, std::vector<Command> menu) {
  look_ = {icon, toolTip, std::move(clicked), std::move(menu)};
  host_.emplace();
  QObject::connect(&*host_, &TrayHost::changed, &*host_, [this] {
    showInTray();
    if (trayChanged_) trayChanged_();
  });
  showInTray();
}

// Not before there is a tray: the toolkit looks once which kind of trays the desktop has, and an
// icon of the other kind is never seen.
void DesktopStatusItem::showInTray() {
  if (icon_ || !host_->isThere()) return;
  menu_ = std::make_unique<QMenu>();
  for (const Command& command : look_.menu) menu_->addAction(command.text, command.run);
  icon_ = std::make_unique<QSystemTrayIcon>(look_.icon);
  icon_->setToolTip(look_.toolTip);
  icon_->setContextMenu(menu_.get());
  QObject::connect(icon_.get(), &QSystemTrayIcon::activated, icon_.get(),
                   [this](QSystemTrayIcon::ActivationReason reason) {
                     if (reason == QSystemTrayIcon::Trigger) look_.clicked();
                   });
  icon_->show();
}

void DesktopStatusItem::closeMenu() {
  if (menu_) menu_->close();
}

bool DesktopStatusItem::isInTray() const { return icon_ && host_->isThere(); }

}  // namespace tarnloft
