#pragma once

#include "platform/Preferences.h"

#include <QList>
#include <QRect>
#include <QWindow>

#include <optional>

namespace tarnloft {

enum class Maximized { no, yes };

// What the main window keeps from one run to the next. Logical pixels.
struct WindowState {
  std::optional<QPoint> position;  // of the frame; none leaves it to the desktop
  QSize size = defaultSize;        // of the content
  Maximized maximized = Maximized::no;
  double sidebarWidth = 240;

  static constexpr QSize defaultSize{1160, 760};
  static constexpr QSize minimumSize{860, 580};

  bool operator==(const WindowState&) const = default;

  // As large as the default, where a screen of that room has place for it beside a title bar and a
  // panel: on Wayland the room is the whole screen.
  static QSize firstSize(QSize room);

  // What can't be understood takes its default.
  static WindowState read(const Preferences& store);
  void write(Preferences& store) const;

  // Made fit for the present screens: no larger than the one it is on, and without a position that
  // would leave its title bar out of reach.
  WindowState fitting(const QList<QRect>& screens) const;
};

// Once in a user's life: a window narrower than 1000 points, as an early version may have left it,
// gets the default size in the middle of its screen, or what of it that has room for. Null counts
// as done.
void rightSizeWindow(QWindow* window, Preferences& preferences);

}  // namespace tarnloft
