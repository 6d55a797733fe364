#include "shell/window/WindowState.h"

#include <QScreen>

#include <algorithm>
#include <cmath>

namespace tarnloft {
namespace {

namespace keys {
const auto x = QLatin1String("windowX");
const auto y = QLatin1String("windowY");
const auto width = QLatin1String("windowWidth");
const auto height = QLatin1String("windowHeight");
const auto maximized = QLatin1String("windowMaximized");
const auto sidebarWidth = QLatin1String("sidebarWidth");
const auto didRightSizeWindow = QLatin1String("didRightSizeWindow");
}  // namespace keys

const auto yes = QLatin1String("true");

// A number that can be a place on a screen.
std::optional<int> coordinate(const Preferences& store, QLatin1String key) {
  const auto value = store.number(key);
  if (!value || !(std::abs(*value) < 100'000)) return std::nullopt;
  return int(std::lround(*value));
}

// What of a window must be on a screen so that it can be taken hold of.
QRect titleBar(QPoint position, QSize size) { return {position, QSize(size.width(), 30)}; }

}  // namespace

QSize WindowState::firstSize(QSize room) {
  constexpr QSize besides(0, 90);
  return defaultSize.boundedTo(room - besides).expandedTo(minimumSize);
}

WindowState WindowState::read(const Preferences& store) {
  WindowState state;
  const auto x = coordinate(store, keys::x);
  const auto y = coordinate(store, keys::y);
  if (x && y) state.position = QPoint(*x, *y);
  const auto width = coordinate(store, keys::width);
  const auto height = coordinate(store, keys::height);
  if (width && height) state.size = QSize(*width, *height).expandedTo(minimumSize);
  if (store.text(keys::maximized) == yes) state.maximized = Maximized::yes;
  const double sidebar = store.number(keys::sidebarWidth).value_or(state.sidebarWidth);
  if (sidebar >= 200 && sidebar <= 340) state.sidebarWidth = sidebar;
  return state;
}

void WindowState::write(Preferences& store) const {
  if (position) {
    store.setNumber(keys::x, position->x());
    store.setNumber(keys::y, position->y());
  }
  store.setNumber(keys::width, size.width());
  store.setNumber(keys::height, size.height());
  maximized == Maximized::yes ? store.setText(keys::maximized, yes) : store.remove(keys::maximized);
  store.setNumber(keys::sidebarWidth, sidebarWidth);
}

WindowState WindowState::fitting(const QList<QRect>& screens) const {
  WindowState state = *this;
  const auto reachable = [&](const QRect& screen) {
    const QRect seen = screen.intersected(titleBar(position.value_or(QPoint()), size));
    return seen.width() >= 100 && seen.height() >= 20;
  };
  const auto screen = std::ranges::find_if(screens, reachable);
  if (screen == screens.cend()) state.position.reset();
  if (screens.isEmpty()) return state;
  const QRect& room = screen == screens.cend() ? screens.first() : *screen;
  state.size = size == defaultSize ? firstSize(room.size())
                                   : size.boundedTo(room.size()).expandedTo(minimumSize);
  return state;
}

void rightSizeWindow(QWindow* window, Preferences& preferences) {
  if (preferences.text(keys::didRightSizeWindow) == yes) return;
  if (window && window->frameGeometry().width() < 1000) {
    const QRect room = window->screen()->availableGeometry();
    window->resize(WindowState::firstSize(room.size()));
    QRect frame = window->geometry().marginsAdded(window->frameMargins());
    frame.moveCenter(room.center());
    frame.moveTop(std::max(frame.top(), room.top()));
    window->setFramePosition(frame.topLeft());
  }
  preferences.setText(keys::didRightSizeWindow, yes);
}

}  // namespace tarnloft
