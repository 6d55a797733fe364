#include "pictures/EmblemView.h"

#include "controls/drawing/SymbolGlyphs.h"
#include "controls/theme/Contrast.h"
#include "controls/theme/Theme.h"
#include "controls/theme/Typography.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QQmlEngine>

#include <utility>

namespace tarnloft {
namespace {

using Ground = EmblemStyle::Ground;
using Ink = EmblemStyle::Ink;
using Mark = EmblemStyle::Mark;

// A text in one line, its middle and where its baseline lies below that.
void drawCentred(QPainter& painter, const QFont& font, const QString& text, double drop) {
  const double width = QFontMetricsF(font).horizontalAdvance(text);
  const QPointF middle = QRectF(painter.window()).center();
  painter.setFont(font);
  painter.drawText(QPointF(std::round(middle.x() - width / 2), std::round(middle.y() + drop)),
                   text);
}

}  // namespace

EmblemView::EmblemView(QQuickItem* parent) : ThumbnailView(parent) {
  setFillMode(Fill);
  setMaxPixel(128);
  setSize(22);
}

void EmblemView::setLook(const EmblemLook& look) {
  if (look_ == look) return;
  look_ = look;
  setPath(look.mark == Mark::Picture ? look.text : QString());
  emit lookChanged();
  renew();
}

void EmblemView::setSize(double size) {
  if (width() == size && height() == size) return;
  QQuickItem::setSize(QSizeF(size, size));
  setRadius(size / 2);
  emit sizeChanged();
}

void EmblemView::setFallbackTint(const QColor& tint) {
  if (std::exchange(fallbackTint_, tint) == tint) return;
  emit fallbackTintChanged();
  renew();
}

void EmblemView::componentComplete() {
  ThumbnailView::componentComplete();
  theme_ = &Theme::of(*qmlEngine(this));
  connect(theme_, &Theme::changed, this, &EmblemView::renew);
}

bool EmblemView::isBlank() const {
  const bool isMarked = look_.mark == Mark::Picture ? hasPicture() : look_.mark != Mark::NoMark;
  return !theme_ || (look_.ground == Ground::NoGround && !isMarked);
}

QImage EmblemView::drawn() const {
  QImage result(pixelSize(), QImage::Format_ARGB32_Premultiplied);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  if (look_.ground != Ground::NoGround) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(look_.ground == Ground::Filled ? look_.color
                                                    : Theme::thin(theme_->secondaryLabel(), 0.2));
    painter.drawEllipse(result.rect());
    if (look_.ground == Ground::Filled) drawRim(painter);
  }
  drawMark(painter);
  return result;
}

// About a circle that would be lost on what it stands on.
void EmblemView::drawRim(QPainter& painter) const {
  constexpr double lost = 1.6;
  if (contrastRatio(look_.color, theme_->windowBackground()) >= lost) return;
  const double point = pixelSize().height() / height();
  painter.setPen(QPen(Theme::thin(theme_->primary(), theme_->isDark() ? 0.34 : 0.22), point));
  painter.setBrush(Qt::NoBrush);
  const double inset = point / 2;
  painter.drawEllipse(QRectF(QPointF(), pixelSize()).adjusted(inset, inset, -inset, -inset));
}

// Sizes are pixels of the screen.
void EmblemView::drawMark(QPainter& painter) const {
  const double size = pixelSize().height();
  const auto drawSymbol = [&](double part, QFont::Weight weight) {
    const int em = qRound(size * part * 1.25);
    // The middle of the symbol font's square is three eighths of it above the baseline.
    drawCentred(painter, SymbolGlyphs::font(em, weight), SymbolGlyphs::text(look_.text),
                em * 0.375);
  };
  painter.setPen(ink());
  switch (look_.mark) {
    case Mark::Symbol: return drawSymbol(0.5, QFont::DemiBold);
    case Mark::Bare: return drawSymbol(0.72, QFont::Normal);
    case Mark::Emoji: {
      const QFont font = emojiFont(qRound(size * 0.6));
      const QFontMetricsF metrics(font);
      return drawCentred(painter, font, look_.text, (metrics.ascent() - metrics.descent()) / 2);
    }
    case Mark::Monogram: {
      const QFont font = interfaceFont(qRound(size * 0.5), QFont::DemiBold);
      return drawCentred(painter, font, look_.text, QFontMetricsF(font).capHeight() / 2);
    }
    case Mark::Picture:
      if (hasPicture()) painter.drawImage(0, 0, PictureView::drawn());
      return;
    case Mark::NoMark: return;
  }
}

QColor EmblemView::ink() const {
  switch (look_.ink) {
    case Ink::Black: return Qt::black;
    case Ink::White: return Qt::white;
    case Ink::Fallback: return fallbackTint_.isValid() ? fallbackTint_ : theme_->secondaryLabel();
    case Ink::Primary: break;
  }
  return theme_->label();
}

}  // namespace tarnloft
