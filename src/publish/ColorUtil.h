#pragma once

#include "model/EnumTable.h"

#include <QList>
#include <QString>

#include <optional>

namespace tarnloft {

// The notations in which a colour can be copied, in the order in which they are offered.
enum class ColorCopyFormat { hex, hexLower, rgb, hsl, cmyk };

template <>
struct EnumTable<ColorCopyFormat> {
  static constexpr std::array cases{
      EnumCase<ColorCopyFormat>{ColorCopyFormat::hex, "hex"},
      EnumCase<ColorCopyFormat>{ColorCopyFormat::hexLower, "hexLower"},
      EnumCase<ColorCopyFormat>{ColorCopyFormat::rgb, "rgb"},
      EnumCase<ColorCopyFormat>{ColorCopyFormat::hsl, "hsl"},
      EnumCase<ColorCopyFormat>{ColorCopyFormat::cmyk, "cmyk"},
  };
};

// The format's name in the settings, such as "HEX (lowercase)".
QString label(ColorCopyFormat format);

// sRGB components, each from 0 to 1.
struct SRGBColor {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  bool operator==(const SRGBColor&) const = default;
};

// Percentages, 0 to 100.
struct CMYKColor {
  int c = 0;
  int m = 0;
  int y = 0;
  int k = 0;

  bool operator==(const CMYKColor&) const = default;
};

// A text colour to put on a swatch; `primary` is the interface's own.
enum class TextColor { black, white, primary };

struct FormatVariant {
  QString label;
  QString value;

  bool operator==(const FormatVariant&) const = default;
};

// Conversions of colours, which are hex texts wherever they are stored. Pure functions, any thread;
// a text that doesn't parse gives no value. Rounding is half away from zero.
namespace ColorUtil {

// Takes RGB, RRGGBB or RRGGBBAA with or without one "#", and white space around it.
std::optional<SRGBColor> nsColor(const QString& hex);

enum class Alpha { leaveOut, include };
// "#4C6FFF", or "#4C6FFF80" with alpha last.
QString hex(const SRGBColor& color, Alpha alpha = Alpha::leaveOut);

// Without a profile: black is what is missing of the strongest component. Alpha is ignored.
std::optional<CMYKColor> cmyk(const QString& hex);

// "rgb(255, 0, 0)"; the text itself must parse.
QString rgbNotation(const SRGBColor& color);

// WCAG 2.0 relative luminance, 0 to 1, with that text's threshold of 0.03928.
std::optional<double> relativeLuminance(const QString& hex);
// WCAG contrast ratio of two luminances, 1 to 21.
double contrastRatio(double a, double b);
// "AAA", "AA", "AA Large" or "Fail".
QString wcagGrade(double ratio);
// The grade of the colour's better contrast, against white or against black.
std::optional<QString> bestGrade(const QString& hex);
// The same as a tile shows it: no badge for "Fail".
std::optional<QString> wcagBadge(const QString& hex);
// "On white  4.58:1 · AA" and the like for black; empty for a text that doesn't parse.
QStringList contrastRows(const QString& hex);

// Black on light colours and white on dark ones, by the luma of ITU-R BT.601.
TextColor contrastingText(const QString& hex);

// Each notation with its row label. A text that doesn't parse gives one row with the text itself.
QList<FormatVariant> formatVariants(const QString& hex);
// What a copy of the colour yields.
QString formatted(const QString& hex, ColorCopyFormat format);

enum class Appearance { light, dark };
// The accent in force: the brand's own, in which case a missing dark one means its light one; else
// the application's default.
QString effectiveAccent(const std::optional<QString>& brandAccent,
                        const std::optional<QString>& brandAccentDark, const QString& defaultAccent,
                        const std::optional<QString>& defaultAccentDark, Appearance appearance);

}  // namespace ColorUtil
}  // namespace tarnloft
