#pragma once

#include <QRect>
#include <QString>

#include <functional>
#include <vector>

class QIcon;

namespace tarnloft {

// The program's icon in the desktop's tray. Main thread.
class StatusItem {
 public:
  struct Command {
    QString text;
    std::function<void()> run;
  };

  virtual ~StatusItem() = default;

  // Puts the icon into the tray, also if a tray comes only later. A click runs `clicked`; the menu
  // holds the commands. Once.
  virtual void install(const QIcon& icon, const QString& toolTip, std::function<void()> clicked,
                       std::vector<Command> menu) = 0;

  // Closes the menu, if it is the program's own and open: it has the keyboard.
  virtual void closeMenu() {}

  // Runs that whenever a tray has come or gone. Once.
  virtual void followTray(std::function<void()> changed) = 0;

  // Whether the desktop has a tray just now. Asks it anew: a few milliseconds.
  virtual bool isInTray() const = 0;

  // Where the icon is on the desktop, in points; empty where the desktop doesn't tell.
  virtual QRect place() const = 0;
};

}  // namespace tarnloft
