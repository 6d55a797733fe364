#pragma once

#include <QColor>

namespace tarnloft {

enum class ColorScheme { light, dark };

// Every colour that the interface is drawn in, for one scheme and one accent. Labels, separators
// and fills are translucent, so that they sit right on any background.
struct Palette {
  QColor primary;  // black or white, to be thinned by an opacity
  QColor label, secondaryLabel, tertiaryLabel, quaternaryLabel, placeholder;

  QColor windowBackground, sidebarBackground, controlBackground, textBackground, sheetBackground,
      menuBackground;
  QColor thinMaterial, regularMaterial, thickMaterial;
  QColor separator, hairline, panelBorder, dim;

  QColor hoverFill, pressedFill, selectedFill;
  QColor controlFill, controlFillHovered, controlFillPressed, controlBorder;
  QColor fieldFill, fieldBorder;
  QColor track, trackThumb, knob, knobBorder;
  QColor checkEdge, offTrack;  // of a check box and a switch that are off

  QColor accent;      // as given
  QColor accentText;  // the accent as a text: at least 4.5:1 on every background
  QColor accentFill, accentFillHovered, accentFillPressed;
  QColor onAccent;  // text on the fills: at least 4.5:1
  QColor focusRing, textSelection;

  QColor destructive, destructiveFill, destructiveFillHovered, destructiveFillPressed,
      onDestructive;
  QColor positive, warning, informative;
  QColor warningFill;  // under labels, for what isn't as it should be

  static Palette make(ColorScheme scheme, const QColor& accent);
};

}  // namespace tarnloft
