#pragma once

#include <QColor>

namespace tarnloft {

// Relative luminance of an opaque sRGB colour, 0 to 1 (WCAG 2.1).
double relativeLuminance(const QColor& color);

// From 1 to 21 (WCAG 2.1). A translucent foreground counts as it shows on the opaque background.
double contrastRatio(const QColor& foreground, const QColor& background);

// What shows when a translucent colour lies on an opaque one.
QColor over(const QColor& foreground, const QColor& background);

// A mixture in sRGB: `amount` 0 gives the first, 1 the second.
QColor mixed(const QColor& first, const QColor& second, double amount);

// White or black: white wherever it reads well enough, since it looks calmer on a tint.
QColor textOn(const QColor& fill);

// The colour nearest to `color` that has at least this ratio on `background`, found by mixing in
// black on a light background and white on a dark one.
QColor readableOn(const QColor& color, const QColor& background, double ratio);

}  // namespace tarnloft
