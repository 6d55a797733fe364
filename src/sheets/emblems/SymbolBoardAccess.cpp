#include "sheets/emblems/SymbolBoardAccess.h"

#include "sheets/emblems/EmblemSymbolList.h"
#include "sheets/emblems/SymbolBoard.h"

#include <QAccessibleActionInterface>
#include <QPointer>
#include <QQuickWindow>

namespace tarnloft {
namespace {

QRect onScreen(const SymbolBoard& board, const QRectF& place) {
  if (!board.window()) return {};
  const QRect inWindow = board.mapRectToScene(place).toAlignedRect();
  return {board.window()->mapToGlobal(inWindow.topLeft()), inWindow.size()};
}

// One symbol. It may be asked after its board or its place has gone.
class Cell : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Cell(SymbolBoard& board, int place) : board_(&board), place_(place) {}

  int place() const { return place_; }

  bool isValid() const override { return board_ && place_ < board_->symbols().size(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return isValid() ? board_->window() : nullptr; }
  QAccessibleInterface* parent() const override {
    return board_ ? QAccessible::queryAccessibleInterface(board_) : nullptr;
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name || !isValid()) return {};
    return spokenSymbol(board_->symbols().at(place_));
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QRect rect() const override {
    return isValid() ? onScreen(*board_, board_->cellOnBoard(place_)) : QRect();
  }
  QAccessible::Role role() const override { return QAccessible::RadioButton; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    if (!isValid()) return state;
    state.checkable = true;
    state.checked = place_ == board_->chosen();
    state.focusable = true;
    state.focused = board_->hasActiveFocus() && place_ == board_->current();
    state.invisible = !board_->isVisible();
    state.offscreen = !board_->boundingRect().intersects(board_->cellOnBoard(place_));
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (isValid() && name == pressAction()) emit board_->pressed(place_);
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  const QPointer<SymbolBoard> board_;
  const int place_;
};

QAccessibleInterface* made(const QString& className, QObject* object) {
  auto* const board = qobject_cast<SymbolBoard*>(object);
  const bool isWanted = className == QLatin1String(SymbolBoard::staticMetaObject.className());
  return board && isWanted ? new SymbolBoardAccess(*board) : nullptr;
}

}  // namespace

void SymbolBoardAccess::install() {
  static const bool isInstalled = (QAccessible::installFactory(made), true);
  Q_UNUSED(isInstalled)
}

void SymbolBoardAccess::tellFocus(SymbolBoard& board) {
  if (!QAccessible::isActive()) return;
  const QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&board);
  QAccessibleInterface* const cell = list ? list->focusChild() : nullptr;
  if (!cell) return;
  QAccessibleEvent event(cell, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

SymbolBoardAccess::SymbolBoardAccess(SymbolBoard& board) : QAccessibleObject(&board) {}

SymbolBoardAccess::~SymbolBoardAccess() {
  for (const QAccessible::Id cell : cells_)
    if (cell) QAccessible::deleteAccessibleInterface(cell);
}

SymbolBoard& SymbolBoardAccess::board() const { return static_cast<SymbolBoard&>(*object()); }

QWindow* SymbolBoardAccess::window() const { return board().window(); }

// The toolkit tells of those items alone that views tell something of.
QAccessibleInterface* SymbolBoardAccess::parent() const {
  for (QQuickItem* item = board().parentItem(); item; item = item->parentItem())
    if (auto* const known = QAccessible::queryAccessibleInterface(item)) return known;
  return QAccessible::queryAccessibleInterface(board().window());
}

QAccessibleInterface* SymbolBoardAccess::child(int place) const {
  if (place < 0 || place >= childCount()) return nullptr;
  if (cells_.size() <= size_t(place)) cells_.resize(size_t(childCount()));
  QAccessible::Id& id = cells_.at(size_t(place));
  if (!id) id = QAccessible::registerAccessibleInterface(new Cell(board(), place));
  return QAccessible::accessibleInterface(id);
}

QAccessibleInterface* SymbolBoardAccess::childAt(int x, int y) const {
  if (!window()) return nullptr;
  return child(board().placeAt(board().mapFromScene(window()->mapFromGlobal(QPoint(x, y)))));
}

QAccessibleInterface* SymbolBoardAccess::focusChild() const {
  return board().hasActiveFocus() ? child(board().current()) : nullptr;
}

int SymbolBoardAccess::childCount() const { return int(board().symbols().size()); }

int SymbolBoardAccess::indexOfChild(const QAccessibleInterface* child) const {
  const auto* const cell = dynamic_cast<const Cell*>(child);
  return cell ? cell->place() : -1;
}

QString SymbolBoardAccess::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? QStringLiteral("Symbols") : QString();
}

QRect SymbolBoardAccess::rect() const { return onScreen(board(), board().boundingRect()); }

QAccessible::State SymbolBoardAccess::state() const {
  QAccessible::State state;
  state.focusable = true;
  state.focused = board().hasActiveFocus();
  state.invisible = !board().isVisible();
  return state;
}

}  // namespace tarnloft
