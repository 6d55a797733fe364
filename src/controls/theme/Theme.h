#pragma once

#include "controls/theme/Palette.h"

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace tarnloft {

// One getter for QML over a colour of the palette.
#define TARNLOFT_COLOR(name) \
  QColor name() const { return palette_.name; }

// The look of all windows of one engine, for QML. The application sets `dark` and `accent`; all
// else follows. Sizes are logical pixels.
class Theme : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

  Q_PROPERTY(bool dark READ isDark WRITE setDark NOTIFY changed)
  Q_PROPERTY(QColor accent READ accent WRITE setAccent NOTIFY changed)

  Q_PROPERTY(QColor primary READ primary NOTIFY changed)
  Q_PROPERTY(QColor label READ label NOTIFY changed)
  Q_PROPERTY(QColor secondaryLabel READ secondaryLabel NOTIFY changed)
  Q_PROPERTY(QColor tertiaryLabel READ tertiaryLabel NOTIFY changed)
  Q_PROPERTY(QColor quaternaryLabel READ quaternaryLabel NOTIFY changed)
  Q_PROPERTY(QColor placeholder READ placeholder NOTIFY changed)

  Q_PROPERTY(QColor windowBackground READ windowBackground NOTIFY changed)
  Q_PROPERTY(QColor sidebarBackground READ sidebarBackground NOTIFY changed)
  Q_PROPERTY(QColor controlBackground READ controlBackground NOTIFY changed)
  Q_PROPERTY(QColor textBackground READ textBackground NOTIFY changed)
  Q_PROPERTY(QColor sheetBackground READ sheetBackground NOTIFY changed)
  Q_PROPERTY(QColor menuBackground READ menuBackground NOTIFY changed)
  Q_PROPERTY(QColor thinMaterial READ thinMaterial NOTIFY changed)
  Q_PROPERTY(QColor regularMaterial READ regularMaterial NOTIFY changed)
  Q_PROPERTY(QColor thickMaterial READ thickMaterial NOTIFY changed)
  Q_PROPERTY(QColor separator READ separator NOTIFY changed)
  Q_PROPERTY(QColor hairline READ hairline NOTIFY changed)
  Q_PROPERTY(QColor panelBorder READ panelBorder NOTIFY changed)
  Q_PROPERTY(QColor dim READ dim NOTIFY changed)

  Q_PROPERTY(QColor hoverFill READ hoverFill NOTIFY changed)
  Q_PROPERTY(QColor pressedFill READ pressedFill NOTIFY changed)
  Q_PROPERTY(QColor selectedFill READ selectedFill NOTIFY changed)
  Q_PROPERTY(QColor controlFill READ controlFill NOTIFY changed)
  Q_PROPERTY(QColor controlFillHovered READ controlFillHovered NOTIFY changed)
  Q_PROPERTY(QColor controlFillPressed READ controlFillPressed NOTIFY changed)
  Q_PROPERTY(QColor controlBorder READ controlBorder NOTIFY changed)
  Q_PROPERTY(QColor fieldFill READ fieldFill NOTIFY changed)
  Q_PROPERTY(QColor fieldBorder READ fieldBorder NOTIFY changed)
  Q_PROPERTY(QColor track READ track NOTIFY changed)
  Q_PROPERTY(QColor trackThumb READ trackThumb NOTIFY changed)
  Q_PROPERTY(QColor knob READ knob NOTIFY changed)
  Q_PROPERTY(QColor knobBorder READ knobBorder NOTIFY changed)
  Q_PROPERTY(QColor checkEdge READ checkEdge NOTIFY changed)
  Q_PROPERTY(QColor offTrack READ offTrack NOTIFY changed)

  Q_PROPERTY(QColor accentText READ accentText NOTIFY changed)
  Q_PROPERTY(QColor accentFill READ accentFill NOTIFY changed)
  Q_PROPERTY(QColor accentFillHovered READ accentFillHovered NOTIFY changed)
  Q_PROPERTY(QColor accentFillPressed READ accentFillPressed NOTIFY changed)
  Q_PROPERTY(QColor onAccent READ onAccent NOTIFY changed)
  Q_PROPERTY(QColor focusRing READ focusRing NOTIFY changed)
  Q_PROPERTY(QColor textSelection READ textSelection NOTIFY changed)

  Q_PROPERTY(QColor destructive READ destructive NOTIFY changed)
  Q_PROPERTY(QColor destructiveFill READ destructiveFill NOTIFY changed)
  Q_PROPERTY(QColor destructiveFillHovered READ destructiveFillHovered NOTIFY changed)
  Q_PROPERTY(QColor destructiveFillPressed READ destructiveFillPressed NOTIFY changed)
  Q_PROPERTY(QColor onDestructive READ onDestructive NOTIFY changed)
  Q_PROPERTY(QColor positive READ positive NOTIFY changed)
  Q_PROPERTY(QColor warning READ warning NOTIFY changed)
  Q_PROPERTY(QColor informative READ informative NOTIFY changed)
  Q_PROPERTY(QColor warningFill READ warningFill NOTIFY changed)

  Q_PROPERTY(QFont largeTitle READ largeTitle CONSTANT)
  Q_PROPERTY(QFont title READ title CONSTANT)
  Q_PROPERTY(QFont title2 READ title2 CONSTANT)
  Q_PROPERTY(QFont title3 READ title3 CONSTANT)
  Q_PROPERTY(QFont headline READ headline CONSTANT)
  Q_PROPERTY(QFont body READ body CONSTANT)
  Q_PROPERTY(QFont callout READ callout CONSTANT)
  Q_PROPERTY(QFont subheadline READ subheadline CONSTANT)
  Q_PROPERTY(QFont footnote READ footnote CONSTANT)
  Q_PROPERTY(QFont caption READ caption CONSTANT)

  Q_PROPERTY(int fieldRadius READ fieldRadius CONSTANT)
  Q_PROPERTY(int cardRadius READ cardRadius CONSTANT)
  Q_PROPERTY(int panelRadius READ panelRadius CONSTANT)

 public:
  // The engine's one theme, made at the first call and owned by the engine. Also gives the engine
  // the pictures that controls use.
  static Theme& of(QQmlEngine& engine);

  static Theme* create(QQmlEngine* engine, QJSEngine* scripts);

  bool isDark() const { return scheme_ == ColorScheme::dark; }
  void setDark(bool dark);
  void setAccent(const QColor& accent);
  const Palette& palette() const { return palette_; }

  static int fieldRadius() { return 6; }
  static int cardRadius() { return 10; }
  static int panelRadius() { return 12; }

  // The colour at a share of its own opacity, as in "the primary colour at opacity 0.08".
  Q_INVOKABLE static QColor thin(const QColor& color, double opacity);

  // The interface's typeface in another size or weight (a value of QML's `Font.Weight`).
  Q_INVOKABLE static QFont font(int pixelSize, int weight = QFont::Normal);
  Q_INVOKABLE static QFont emoji(int pixelSize);
  Q_INVOKABLE static QFont monospaced(int pixelSize, int weight = QFont::Normal);

  // Of a control in a `ControlSize`: its height, the radius of its corners and its text.
  Q_INVOKABLE static int controlHeight(int size);
  Q_INVOKABLE static int controlRadius(int size);
  Q_INVOKABLE static int controlText(int size);

  TARNLOFT_COLOR(primary)
  TARNLOFT_COLOR(label)
  TARNLOFT_COLOR(secondaryLabel)
  TARNLOFT_COLOR(tertiaryLabel)
  TARNLOFT_COLOR(quaternaryLabel)
  TARNLOFT_COLOR(placeholder)
  TARNLOFT_COLOR(windowBackground)
  TARNLOFT_COLOR(sidebarBackground)
  TARNLOFT_COLOR(controlBackground)
  TARNLOFT_COLOR(textBackground)
  TARNLOFT_COLOR(sheetBackground)
  TARNLOFT_COLOR(menuBackground)
  TARNLOFT_COLOR(thinMaterial)
  TARNLOFT_COLOR(regularMaterial)
  TARNLOFT_COLOR(thickMaterial)
  TARNLOFT_COLOR(separator)
  TARNLOFT_COLOR(hairline)
  TARNLOFT_COLOR(panelBorder)
  TARNLOFT_COLOR(dim)
  TARNLOFT_COLOR(hoverFill)
  TARNLOFT_COLOR(pressedFill)
  TARNLOFT_COLOR(selectedFill)
  TARNLOFT_COLOR(controlFill)
  TARNLOFT_COLOR(controlFillHovered)
  TARNLOFT_COLOR(controlFillPressed)
  TARNLOFT_COLOR(controlBorder)
  TARNLOFT_COLOR(fieldFill)
  TARNLOFT_COLOR(fieldBorder)
  TARNLOFT_COLOR(track)
  TARNLOFT_COLOR(trackThumb)
  TARNLOFT_COLOR(knob)
  TARNLOFT_COLOR(knobBorder)
  TARNLOFT_COLOR(checkEdge)
  TARNLOFT_COLOR(offTrack)
  TARNLOFT_COLOR(accent)
  TARNLOFT_COLOR(accentText)
  TARNLOFT_COLOR(accentFill)
  TARNLOFT_COLOR(accentFillHovered)
  TARNLOFT_COLOR(accentFillPressed)
  TARNLOFT_COLOR(onAccent)
  TARNLOFT_COLOR(focusRing)
  TARNLOFT_COLOR(textSelection)
  TARNLOFT_COLOR(destructive)
  TARNLOFT_COLOR(destructiveFill)
  TARNLOFT_COLOR(destructiveFillHovered)
  TARNLOFT_COLOR(destructiveFillPressed)
  TARNLOFT_COLOR(onDestructive)
  TARNLOFT_COLOR(positive)
  TARNLOFT_COLOR(warning)
  TARNLOFT_COLOR(informative)
  TARNLOFT_COLOR(warningFill)

  QFont largeTitle() const { return font(26); }
  QFont title() const { return font(22); }
  QFont title2() const { return font(17); }
  QFont title3() const { return font(15); }
  QFont headline() const { return font(13, QFont::Bold); }
  QFont body() const { return font(13); }
  QFont callout() const { return font(12); }
  QFont subheadline() const { return font(11); }
  QFont footnote() const { return font(10); }
  QFont caption() const { return font(10); }

 signals:
  void changed();

 private:
  explicit Theme(QObject* parent);
  void renew(ColorScheme scheme, const QColor& accent);

  ColorScheme scheme_ = ColorScheme::light;
  Palette palette_;
};

#undef TARNLOFT_COLOR

}  // namespace tarnloft
