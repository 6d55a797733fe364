#include "quickgrab/panel/PanelPlacement.h"

#include <algorithm>

namespace tarnloft {

QPoint panelPlace(const QRect& anchor, QSize panel, const QRect& screen) {
  constexpr int gap = 4;     // to what it belongs to
  constexpr int margin = 6;  // to the screen's edge
  const QRect room = screen.adjusted(margin, margin, -margin, -margin);
  const auto within = [](int wanted, int low, int high) {
    return std::max(low, std::min(wanted, high));
  };
  const int below = anchor.y() + anchor.height() + gap;
  const int above = anchor.y() - gap - panel.height();
  const bool fitsBelow = below + panel.height() <= room.y() + room.height();
  return {within(anchor.center().x() - panel.width() / 2, room.x(),
                 room.x() + room.width() - panel.width()),
          within(fitsBelow ? below : above, room.y(), room.y() + room.height() - panel.height())};
}

}  // namespace tarnloft
