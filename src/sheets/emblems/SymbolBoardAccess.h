#pragma once

#include <QAccessibleObject>

#include <vector>

namespace tarnloft {

class SymbolBoard;

// What assistive technology is told of a board: a list of radio buttons. Main thread.
class SymbolBoardAccess : public QAccessibleObject {
 public:
  // Boards are told of in this way from now on.
  static void install();
  // The keyboard has come to the board's current symbol.
  static void tellFocus(SymbolBoard& board);

  explicit SymbolBoardAccess(SymbolBoard& board);
  ~SymbolBoardAccess() override;
  Q_DISABLE_COPY_MOVE(SymbolBoardAccess)

  QWindow* window() const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int place) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QString text(QAccessible::Text kind) const override;
  QRect rect() const override;
  QAccessible::Role role() const override { return QAccessible::List; }
  QAccessible::State state() const override;

 private:
  SymbolBoard& board() const;

  mutable std::vector<QAccessible::Id> cells_;  // those that were asked for; 0 for others
};

}  // namespace tarnloft
