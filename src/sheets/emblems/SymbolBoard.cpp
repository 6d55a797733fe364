#include "sheets/emblems/SymbolBoard.h"

#include "controls/drawing/SymbolGlyphs.h"
#include "controls/theme/Theme.h"
#include "sheets/emblems/SymbolBoardAccess.h"

#include <QAccessible>
#include <QPainter>
#include <QQmlEngine>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnloft {
namespace {

constexpr int pitch = 40;  // of rows, and of columns at least
constexpr int em = 21;     // of the symbols' font, in points

}  // namespace

SymbolBoard::SymbolBoard(QQuickItem* parent) : PictureView(parent) { SymbolBoardAccess::install(); }

void SymbolBoard::setSymbols(const QStringList& symbols) {
  if (std::exchange(symbols_, symbols) == symbols) return;
  emit symbolsChanged();
  emit layoutChanged();
  renew();
}

void SymbolBoard::setChosen(int place) {
  if (std::exchange(chosen_, place) == place) return;
  emit chosenChanged();
  emit cellsChanged();
  renew();
}

void SymbolBoard::setCurrent(int place) {
  if (std::exchange(current_, place) == place) return;
  emit currentChanged();
  emit cellsChanged();
  if (hasActiveFocus()) SymbolBoardAccess::tellFocus(*this);
}

void SymbolBoard::setScrolled(qreal scrolled) {
  if (std::exchange(scrolled_, scrolled) == scrolled) return;
  emit scrolledChanged();
  renew();
}

int SymbolBoard::columns() const { return std::max(1, int(width()) / pitch); }

qreal SymbolBoard::contentHeight() const {
  return pitch * std::ceil(double(symbols_.size()) / columns());
}

QRectF SymbolBoard::cell(int place) const {
  const double width = std::floor(this->width() / columns());
  const int row = place / columns();
  return {place % columns() * width, double(row * pitch), width, pitch};
}

int SymbolBoard::placeAt(const QPointF& point) const {
  const QPointF at = point + QPointF(0, scrolled_);
  const int column = int(at.x() / cell(0).width());
  const int place = int(at.y()) / pitch * columns() + column;
  const bool isCell = at.x() >= 0 && at.y() >= 0 && column < columns() && place < symbols_.size();
  return isCell ? place : -1;
}

void SymbolBoard::componentComplete() {
  PictureView::componentComplete();
  theme_ = &Theme::of(*qmlEngine(this));
  connect(theme_, &Theme::changed, this, &SymbolBoard::renew);
}

void SymbolBoard::focusInEvent(QFocusEvent* event) {
  PictureView::focusInEvent(event);
  SymbolBoardAccess::tellFocus(*this);
}

void SymbolBoard::geometryChange(const QRectF& now, const QRectF& before) {
  PictureView::geometryChange(now, before);
  if (now.width() == before.width()) return;
  emit layoutChanged();
  emit cellsChanged();
}

QImage SymbolBoard::drawn() const {
  QImage result(pixelSize(), QImage::Format_ARGB32_Premultiplied);
  result.fill(Qt::transparent);
  const double ratio = pixelSize().height() / height();
  QPainter painter(&result);
  const int size = qRound(em * ratio);
  painter.setFont(SymbolGlyphs::font(size, QFont::Normal));
  const int first = int(scrolled_ / pitch) * columns();
  const int last = (int((scrolled_ + height()) / pitch) + 1) * columns();
  for (int place = std::max(0, first); place < std::min(int(symbols_.size()), last); ++place) {
    painter.setPen(place == chosen_ ? theme_->onAccent() : theme_->label());
    const QPointF middle = cellOnBoard(place).center() * ratio;
    // The middle of the symbol font's square is three eighths of it above the baseline.
    painter.drawText(
        QPointF(std::round(middle.x() - size / 2.0), std::round(middle.y() + size * 0.375)),
        SymbolGlyphs::text(symbols_.at(place)));
  }
  return result;
}

}  // namespace tarnloft
