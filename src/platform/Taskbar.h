#pragma once

namespace tarnloft {

// The desktop's lists of windows: its taskbar, pager and window switcher. Main thread.
class Taskbar {
 public:
  virtual ~Taskbar() = default;

  // Whether a program can keep its windows out of them here.
  virtual bool canHideWindows() const = 0;

  // For this program's windows, those that are open and those to come. Nothing where it can't.
  virtual void setWindowsShown(bool shown) = 0;
};

}  // namespace tarnloft
