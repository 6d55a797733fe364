#include "quickgrab/MenuBarController.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace tarnloft {
namespace {

constexpr double points = 18;  // the drawing's width and height

// The origin is at the lower left, as in the drawing's figures.
QPainterPath house() {
  QPainterPath body, roof, chimney;
  body.addRoundedRect(QRectF(3.2, 1.8, 11.6, 9), 1.5, 1.5);
  roof.addPolygon(QPolygonF({{1.8, 10.5}, {16.2, 10.5}, {9, 16.3}}));
  roof.closeSubpath();
  chimney.addRect(QRectF(12.2, 11, 1.3, 4.1));
  return body.united(roof).united(chimney);
}

QPainterPath panes() {
  QPainterPath path;
  for (const QPointF& corner : {QPointF(5.05, 2.6), {9.45, 2.6}, {5.05, 7}, {9.45, 7}})
    path.addRoundedRect(QRectF(corner, QSizeF(3.5, 3.5)), 0.7, 0.7);
  return path;
}

// No tray tints the picture here, and its colour isn't told: white with a dark rim and dark panes
// shows on any.
QPixmap housePixmap(int pixels) {
  QPixmap picture(pixels, pixels);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(0, pixels);
  painter.scale(pixels / points, -pixels / points);
  const QColor dark(0, 0, 0, 160);
  painter.strokePath(house(), QPen(dark, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(house().subtracted(panes()), Qt::white);
  painter.fillPath(panes(), dark);
  return picture;
}

}  // namespace

MenuBarController::MenuBarController(StatusItem& statusItem, GlobalHotKey& hotKey,
                                     MenuBarPrefs& prefs, Beep& beep,
                                     std::unique_ptr<QuickGrabPanel> panel, MenuBarActions actions)
    : statusItem_(statusItem),
      hotKey_(hotKey),
      prefs_(prefs),
      hotKeySettings_(prefs, hotKey, beep),
      actions_(std::move(actions)),
      panel_(std::move(panel)) {
  QuickGrab& grab = panel_->grab();
  grab.setHasSettings(bool(actions_.onOpenSettings));
  connect(&grab, &QuickGrab::openAppRequested, this, [this] { leavePanelFor(actions_.onOpenApp); });
  connect(&grab, &QuickGrab::openSettingsRequested, this,
          [this] { leavePanelFor(actions_.onOpenSettings); });
}

void MenuBarController::leavePanelFor(const std::function<void()>& action) {
  panel_->close();
  if (action) action();
}

void MenuBarController::installStatusItem() {
  std::vector<StatusItem::Command> menu{{QStringLiteral("Open Tarn Loft"), actions_.onOpenApp},
                                        {QStringLiteral("Quick Grab"), [this] { showPanel(); }}};
  if (actions_.onOpenSettings)
    menu.push_back({QStringLiteral("Settings…"), actions_.onOpenSettings});
  menu.push_back({QStringLiteral("Quit"), actions_.onQuit});
  statusItem_.install(
      statusItemImage(), QStringLiteral("Tarn Loft — quick grab"),
      [this] { toggle(QuickGrabPanel::By::click); }, std::move(menu));
}

void MenuBarController::installHotKey() {
  hotKey_.install([this] { toggle(QuickGrabPanel::By::key); },
                  [this] { emit hotKeySettings_.changed(); });
  hotKeySettings_.updateHotKey();
}

void MenuBarController::observePrefs() {
  connect(&prefs_, &MenuBarPrefs::hotKeyChanged, &hotKeySettings_, &HotKeySettings::updateHotKey);
}

void MenuBarController::toggle(QuickGrabPanel::By by) {
  statusItem_.closeMenu();
  panel_->toggle(by, statusItem_.place());
}

void MenuBarController::showPanel() {
  statusItem_.closeMenu();
  if (!panel_->isShown()) panel_->show(statusItem_.place());
}

QIcon MenuBarController::statusItemImage() {
  QIcon icon;
  for (const int pixels : {16, 18, 20, 22, 24, 28, 32, 36, 44, 48, 64})
    icon.addPixmap(housePixmap(pixels));
  return icon;
}

}  // namespace tarnloft
