#pragma once

#include "pictures/PictureView.h"

#include <QStringList>

namespace tarnloft {

class Theme;

// Symbols in rows and columns that may be higher than the board: those in sight are one picture,
// since as items of their own hundreds of them would take longer to make than a sheet. Assistive
// technology finds each as a radio button. A symbol's place is its number in the list.
class SymbolBoard : public tarnloft::PictureView {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QStringList symbols READ symbols WRITE setSymbols NOTIFY symbolsChanged)
  Q_PROPERTY(int chosen READ chosen WRITE setChosen NOTIFY chosenChanged)      // -1 for none
  Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)  // the keyboard's
  Q_PROPERTY(qreal scrolled MEMBER scrolled_ WRITE setScrolled NOTIFY scrolledChanged)  // points
  Q_PROPERTY(int columns READ columns NOTIFY layoutChanged)
  Q_PROPERTY(QRectF chosenCell READ chosenCell NOTIFY cellsChanged)
  Q_PROPERTY(QRectF currentCell READ currentCell NOTIFY cellsChanged)
  Q_PROPERTY(qreal contentHeight READ contentHeight NOTIFY layoutChanged)  // of all

 public:
  explicit SymbolBoard(QQuickItem* parent = nullptr);

  const QStringList& symbols() const { return symbols_; }
  void setSymbols(const QStringList& symbols);
  int chosen() const { return chosen_; }
  void setChosen(int place);
  int current() const { return current_; }
  void setCurrent(int place);
  void setScrolled(qreal scrolled);
  int columns() const;
  qreal contentHeight() const;
  QRectF chosenCell() const { return cell(chosen_); }
  QRectF currentCell() const { return cell(current_); }

  // A symbol's cell, `scrolled` points lower than it stands on the board.
  Q_INVOKABLE QRectF cell(int place) const;
  // The place of the cell at a point of the board; -1 beside all.
  Q_INVOKABLE int placeAt(const QPointF& point) const;
  // Where the cell stands on the board; what is out of sight is beyond its edges.
  QRectF cellOnBoard(int place) const { return cell(place).translated(0, -scrolled_); }

 signals:
  void symbolsChanged();
  void chosenChanged();
  void currentChanged();
  void scrolledChanged();
  void layoutChanged();
  void cellsChanged();
  // By assistive technology.
  void pressed(int place);

 protected:
  void componentComplete() override;
  void focusInEvent(QFocusEvent* event) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  bool isBlank() const override { return !theme_ || symbols_.isEmpty(); }
  QImage drawn() const override;

 private:
  QStringList symbols_;
  int chosen_ = -1;
  int current_ = 0;
  qreal scrolled_ = 0;
  const Theme* theme_ = nullptr;  // the engine's, from completion on
};

}  // namespace tarnloft
