#include "controls/theme/Palette.h"

#include "controls/theme/Contrast.h"

namespace tarnloft {

namespace {

constexpr double readable = 4.5;

QColor alpha(QColor color, double opacity) {
  color.setAlphaF(static_cast<float>(opacity));
  return color;
}

QColor rgb(QRgb value, double opacity = 1) { return alpha(QColor(value), opacity); }

Palette light() {
  Palette p;
  p.primary = Qt::black;
  p.label = alpha(Qt::black, 0.87);
  p.secondaryLabel = alpha(Qt::black, 0.60);
  p.tertiaryLabel = alpha(Qt::black, 0.46);
  p.quaternaryLabel = alpha(Qt::black, 0.22);
  p.placeholder = alpha(Qt::black, 0.56);

  p.windowBackground = rgb(0xf6f6f7);
  p.sidebarBackground = rgb(0xededef);
  p.controlBackground = p.textBackground = rgb(0xffffff);
  p.sheetBackground = rgb(0xfafafb);
  p.menuBackground = rgb(0xfdfdfd);
  p.thinMaterial = rgb(0xfcfcfd, 0.94);
  p.regularMaterial = rgb(0xf2f2f4, 0.97);
  p.thickMaterial = rgb(0xfdfdfe, 0.99);
  p.separator = alpha(Qt::black, 0.10);
  p.hairline = alpha(Qt::black, 0.08);
  p.panelBorder = alpha(Qt::black, 0.13);
  p.dim = alpha(Qt::black, 0.24);

  p.hoverFill = alpha(Qt::black, 0.05);
  p.pressedFill = alpha(Qt::black, 0.10);
  p.selectedFill = alpha(Qt::black, 0.08);
  p.controlFill = rgb(0xffffff);
  p.controlFillHovered = rgb(0xf7f7f8);
  p.controlFillPressed = rgb(0xebebed);
  p.controlBorder = alpha(Qt::black, 0.15);
  p.fieldFill = rgb(0xffffff);
  p.fieldBorder = alpha(Qt::black, 0.17);
  p.track = alpha(Qt::black, 0.075);
  p.trackThumb = rgb(0xffffff);
  p.knob = rgb(0xffffff);
  p.knobBorder = alpha(Qt::black, 0.16);
  p.checkEdge = alpha(Qt::black, 0.42);
  p.offTrack = alpha(Qt::black, 0.26);

  p.destructive = rgb(0xcc2a1e);
  p.destructiveFill = rgb(0xd7352a);
  p.positive = rgb(0x1d8a3e);
  p.warning = rgb(0xa86200);
  p.warningFill = rgb(0xffb000, 0.13);
  p.informative = rgb(0x0a6cd6);
  return p;
}

Palette dark() {
  Palette p;
  p.primary = Qt::white;
  p.label = alpha(Qt::white, 0.90);
  p.secondaryLabel = alpha(Qt::white, 0.62);
  p.tertiaryLabel = alpha(Qt::white, 0.46);
  p.quaternaryLabel = alpha(Qt::white, 0.24);
  p.placeholder = alpha(Qt::white, 0.58);

  p.windowBackground = rgb(0x1e1e20);
  p.sidebarBackground = rgb(0x18181a);
  p.controlBackground = p.textBackground = rgb(0x2a2a2d);
  p.sheetBackground = rgb(0x28282b);
  p.menuBackground = rgb(0x2d2d31);
  p.thinMaterial = rgb(0x3c3c41, 0.94);
  p.regularMaterial = rgb(0x2a2a2d, 0.97);
  p.thickMaterial = rgb(0x36363b, 0.99);
  p.separator = alpha(Qt::white, 0.11);
  p.hairline = alpha(Qt::white, 0.08);
  p.panelBorder = alpha(Qt::white, 0.14);
  p.dim = alpha(Qt::black, 0.48);

  p.hoverFill = alpha(Qt::white, 0.07);
  p.pressedFill = alpha(Qt::white, 0.13);
  p.selectedFill = alpha(Qt::white, 0.10);
  p.controlFill = alpha(Qt::white, 0.11);
  p.controlFillHovered = alpha(Qt::white, 0.15);
  p.controlFillPressed = alpha(Qt::white, 0.20);
  p.controlBorder = alpha(Qt::white, 0.08);
  p.fieldFill = alpha(Qt::white, 0.05);
  p.fieldBorder = alpha(Qt::white, 0.16);
  p.track = alpha(Qt::white, 0.10);
  p.trackThumb = rgb(0x606066);
  p.knob = rgb(0xf2f2f4);
  p.knobBorder = alpha(Qt::black, 0.30);
  p.checkEdge = alpha(Qt::white, 0.30);
  p.offTrack = alpha(Qt::white, 0.24);

  p.destructive = rgb(0xff8f87);  // as a button's text too, whose fill is lighter
  p.destructiveFill = rgb(0xd93a30);
  p.positive = rgb(0x3fd06a);
  p.warning = rgb(0xffb340);
  p.warningFill = rgb(0xffb340, 0.11);
  p.informative = rgb(0x5aa9ff);
  return p;
}

// A fill in `color` that carries readable text. A light accent keeps its colour and takes black;
// one that white nearly suits is darkened by the little that white needs.
QColor fillFor(const QColor& color) {
  constexpr double nearly = 3.0;
  return contrastRatio(Qt::white, color) >= nearly ? readableOn(color, Qt::white, readable) : color;
}

// Hovered and pressed fills move away from their text, so that it stays readable.
QColor shifted(const QColor& fill, double amount) {
  return mixed(fill, textOn(fill) == QColor(Qt::white) ? Qt::black : Qt::white, amount);
}

// The background on which texts of the scheme have the least contrast.
QColor hardestBackground(const Palette& p, ColorScheme scheme) {
  return over(scheme == ColorScheme::light ? p.sidebarBackground : p.thinMaterial,
              p.windowBackground);
}

void tint(Palette& p, ColorScheme scheme, const QColor& accent) {
  p.accent = accent;
  p.accentText = readableOn(accent, hardestBackground(p, scheme), readable);
  p.accentFill = fillFor(accent);
  p.accentFillHovered = shifted(p.accentFill, 0.08);
  p.accentFillPressed = shifted(p.accentFill, 0.18);
  p.onAccent = textOn(p.accentFill);
  p.focusRing = alpha(readableOn(accent, hardestBackground(p, scheme), 3.6), 0.9);
  p.textSelection = alpha(accent, scheme == ColorScheme::light ? 0.28 : 0.45);
}

void fillDestructive(Palette& p) {
  p.destructiveFill = fillFor(p.destructiveFill);
  p.destructiveFillHovered = shifted(p.destructiveFill, 0.08);
  p.destructiveFillPressed = shifted(p.destructiveFill, 0.18);
  p.onDestructive = textOn(p.destructiveFill);
}

}  // namespace

Palette Palette::make(ColorScheme scheme, const QColor& accent) {
  Palette p = scheme == ColorScheme::light ? light() : dark();
  tint(p, scheme, accent);
  fillDestructive(p);
  return p;
}

}  // namespace tarnloft
