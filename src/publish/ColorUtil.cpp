#include "publish/ColorUtil.h"

#include "model/Rounding.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace tarnloft {
namespace {

// An unsigned integer in radix 16 with an optional sign, as ordinary integer parsing takes it: a
// minus is good for zero alone.
std::optional<quint32> hexInteger(QStringView text) {
  const bool negative = text.startsWith(u'-');
  if (negative || text.startsWith(u'+')) text = text.sliced(1);
  if (text.isEmpty()) return std::nullopt;
  quint32 value = 0;
  for (const QChar c : text) {
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9') {
      value = value * 16 + (u - u'0');
    } else if ((u | 0x20) >= u'a' && (u | 0x20) <= u'f') {
      value = value * 16 + ((u | 0x20) - u'a' + 10);
    } else {
      return std::nullopt;
    }
  }
  if (negative && value != 0) return std::nullopt;
  return value;
}

double component(quint32 value, int shift, quint32 most) {
  return double((value >> shift) & most) / most;
}

// WCAG 2.0, "relative luminance".
double linear(double x) { return x <= 0.03928 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4); }

struct HSL {
  qint64 hue;  // degrees, 0 to 360
  qint64 saturation;
  qint64 lightness;
};

// Turns of the colour circle, 0 to 1.
double hueOf(const SRGBColor& color, double most, double range) {
  const auto [r, g, b, alpha] = color;
  if (most == r) return ((g - b) / range + (g < b ? 6 : 0)) / 6;
  if (most == g) return ((b - r) / range + 2) / 6;
  return ((r - g) / range + 4) / 6;
}

HSL hslOf(const SRGBColor& color) {
  const double most = std::max({color.red, color.green, color.blue});
  const double least = std::min({color.red, color.green, color.blue});
  const double lightness = (most + least) / 2;
  const double range = most - least;
  if (range == 0) return {0, 0, rounded(lightness * 100)};
  const double saturation = lightness > 0.5 ? range / (2 - most - least) : range / (most + least);
  return {rounded(hueOf(color, most, range) * 360), rounded(saturation * 100),
          rounded(lightness * 100)};
}

QString hslNotation(const SRGBColor& color) {
  const HSL hsl = hslOf(color);
  return QStringLiteral("hsl(%1, %2%, %3%)").arg(hsl.hue).arg(hsl.saturation).arg(hsl.lightness);
}

QString cmykNotation(const CMYKColor& color) {
  return QStringLiteral("cmyk(%1%, %2%, %3%, %4%)")
      .arg(color.c)
      .arg(color.m)
      .arg(color.y)
      .arg(color.k);
}

CMYKColor cmykOf(const SRGBColor& color) {
  const double k = 1 - std::max({color.red, color.green, color.blue});
  if (!(k < 1)) return {0, 0, 0, 100};
  const auto ink = [k](double x) { return int(rounded((1 - x - k) / (1 - k) * 100)); };
  return {ink(color.red), ink(color.green), ink(color.blue), int(rounded(k * 100))};
}

QString rowLabel(ColorCopyFormat format) {
  return format == ColorCopyFormat::hexLower ? QStringLiteral("HEX (lower)") : label(format);
}

double contrastOnWhite(double luminance) {
  return ColorUtil::contrastRatio(luminance,
                                  *ColorUtil::relativeLuminance(QStringLiteral("#FFFFFF")));
}

double contrastOnBlack(double luminance) {
  return ColorUtil::contrastRatio(luminance,
                                  *ColorUtil::relativeLuminance(QStringLiteral("#000000")));
}

QString contrastRow(const QString& title, double ratio) {
  return title + QStringLiteral("  ") + QString::number(ratio, 'f', 2) + QStringLiteral(":1 · ") +
         ColorUtil::wcagGrade(ratio);
}

}  // namespace

QString label(ColorCopyFormat format) {
  switch (format) {
    case ColorCopyFormat::hex: return QStringLiteral("HEX");
    case ColorCopyFormat::hexLower: return QStringLiteral("HEX (lowercase)");
    case ColorCopyFormat::rgb: return QStringLiteral("RGB");
    case ColorCopyFormat::hsl: return QStringLiteral("HSL");
    case ColorCopyFormat::cmyk: return QStringLiteral("CMYK");
  }
  Q_UNREACHABLE();
}

std::optional<SRGBColor> ColorUtil::nsColor(const QString& hex) {
  QStringView text = QStringView(hex).trimmed();
  if (text.startsWith(u'#')) text = text.sliced(1);
  const qsizetype digits = text.size();
  if (digits != 3 && digits != 6 && digits != 8) return std::nullopt;
  const auto value = hexInteger(text);
  if (!value) return std::nullopt;
  if (digits == 3) {
    return SRGBColor{component(*value, 8, 15), component(*value, 4, 15), component(*value, 0, 15)};
  }
  const int low = digits == 8 ? 8 : 0;
  return SRGBColor{component(*value, low + 16, 255), component(*value, low + 8, 255),
                   component(*value, low, 255), digits == 8 ? component(*value, 0, 255) : 1};
}

QString ColorUtil::hex(const SRGBColor& color, Alpha alpha) {
  const auto byte = [](double x) {
    return QStringLiteral("%1").arg(rounded(x * 255), 2, 16, QLatin1Char('0')).toUpper();
  };
  const QString rgb = QLatin1Char('#') + byte(color.red) + byte(color.green) + byte(color.blue);
  return alpha == Alpha::include ? rgb + byte(color.alpha) : rgb;
}

std::optional<CMYKColor> ColorUtil::cmyk(const QString& hex) {
  const auto color = nsColor(hex);
  return color ? std::optional(cmykOf(*color)) : std::nullopt;
}

QString ColorUtil::rgbNotation(const SRGBColor& color) {
  return QStringLiteral("rgb(%1, %2, %3)")
      .arg(rounded(color.red * 255))
      .arg(rounded(color.green * 255))
      .arg(rounded(color.blue * 255));
}

std::optional<double> ColorUtil::relativeLuminance(const QString& hex) {
  const auto color = nsColor(hex);
  if (!color) return std::nullopt;
  return 0.2126 * linear(color->red) + 0.7152 * linear(color->green) + 0.0722 * linear(color->blue);
}

double ColorUtil::contrastRatio(double a, double b) {
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QString ColorUtil::wcagGrade(double ratio) {
  if (ratio >= 7) return QStringLiteral("AAA");
  if (ratio >= 4.5) return QStringLiteral("AA");
  if (ratio >= 3) return QStringLiteral("AA Large");
  return QStringLiteral("Fail");
}

std::optional<QString> ColorUtil::bestGrade(const QString& hex) {
  const auto luminance = relativeLuminance(hex);
  if (!luminance) return std::nullopt;
  return wcagGrade(std::max(contrastOnWhite(*luminance), contrastOnBlack(*luminance)));
}

std::optional<QString> ColorUtil::wcagBadge(const QString& hex) {
  const auto grade = bestGrade(hex);
  return grade == QStringLiteral("Fail") ? std::nullopt : grade;
}

QStringList ColorUtil::contrastRows(const QString& hex) {
  const auto luminance = relativeLuminance(hex);
  if (!luminance) return {};
  return {contrastRow(QStringLiteral("On white"), contrastOnWhite(*luminance)),
          contrastRow(QStringLiteral("On black"), contrastOnBlack(*luminance))};
}

TextColor ColorUtil::contrastingText(const QString& hex) {
  const auto color = nsColor(hex);
  if (!color) return TextColor::primary;
  const double luma = 0.299 * color->red + 0.587 * color->green + 0.114 * color->blue;
  return luma > 0.6 ? TextColor::black : TextColor::white;
}

QList<FormatVariant> ColorUtil::formatVariants(const QString& hex) {
  const auto color = nsColor(hex);
  if (!color) return {{rowLabel(ColorCopyFormat::hex), hex}};
  return {{rowLabel(ColorCopyFormat::hex), hex.toUpper()},
          {rowLabel(ColorCopyFormat::hexLower), hex.toLower()},
          {rowLabel(ColorCopyFormat::rgb), rgbNotation(*color)},
          {rowLabel(ColorCopyFormat::hsl), hslNotation(*color)},
          {rowLabel(ColorCopyFormat::cmyk), cmykNotation(cmykOf(*color))}};
}

QString ColorUtil::formatted(const QString& hex, ColorCopyFormat format) {
  for (const FormatVariant& variant : formatVariants(hex)) {
    if (variant.label == rowLabel(format)) return variant.value;
  }
  return hex.toUpper();
}

QString ColorUtil::effectiveAccent(const std::optional<QString>& brandAccent,
                                   const std::optional<QString>& brandAccentDark,
                                   const QString& defaultAccent,
                                   const std::optional<QString>& defaultAccentDark,
                                   Appearance appearance) {
  const bool dark = appearance == Appearance::dark;
  if (brandAccent) return dark ? brandAccentDark.value_or(*brandAccent) : *brandAccent;
  return dark ? defaultAccentDark.value_or(defaultAccent) : defaultAccent;
}

}  // namespace tarnloft
