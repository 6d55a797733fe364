#pragma once

#include "platform/StatusItem.h"
#include "quickgrab/hotkey/HotKeySettings.h"
#include "quickgrab/panel/QuickGrabPanel.h"

#include <QIcon>

namespace tarnloft {

// What the tray's menu and the panel ask of the program. One that is empty isn't offered.
struct MenuBarActions {
  std::function<void()> onOpenApp;  // shows the main window
  std::function<void()> onOpenSettings = {};
  std::function<void()> onQuit;
};

// The program's presence beside its windows: the icon in the tray, the quick grab panel, and the
// key that summons it from anywhere. Main thread.
class MenuBarController : public QObject {
  Q_OBJECT

 public:
  // Borrowed: all outlive this.
  MenuBarController(StatusItem& statusItem, GlobalHotKey& hotKey, MenuBarPrefs& prefs, Beep& beep,
                    std::unique_ptr<QuickGrabPanel> panel, MenuBarActions actions);

  // In this order, once each.
  void installStatusItem();
  void installHotKey();
  void observePrefs();

  void showPanel();
  QuickGrabPanel& panel() { return *panel_; }
  // For the settings' row.
  HotKeySettings& hotKeySettings() { return hotKeySettings_; }

  // A house with a window of four panes, for trays of any colour.
  static QIcon statusItemImage();

 private:
  void toggle(QuickGrabPanel::By by);
  void leavePanelFor(const std::function<void()>& action);

  StatusItem& statusItem_;
  GlobalHotKey& hotKey_;
  MenuBarPrefs& prefs_;
  HotKeySettings hotKeySettings_;
  const MenuBarActions actions_;
  const std::unique_ptr<QuickGrabPanel> panel_;
};

}  // namespace tarnloft
