#include "entry/selftest/Checks.h"
#include "publish/ColorUtil.h"
#include "publish/PaletteExport.h"

#include <algorithm>

namespace tarnloft::SelfTest {
namespace {

bool writesBack(const char* text, const char* expected) {
  const auto color = ColorUtil::nsColor(QString::fromUtf8(text));
  return color && ColorUtil::hex(*color) == QString::fromUtf8(expected);
}

template <class Test>
bool hasVariant(const char* hex, Test&& test) {
  const auto variants = ColorUtil::formatVariants(QString::fromUtf8(hex));
  return std::any_of(variants.begin(), variants.end(), test);
}

std::optional<CMYKColor> cmyk(const char* hex) { return ColorUtil::cmyk(QString::fromUtf8(hex)); }

QString accent(const std::optional<QString>& brand, const std::optional<QString>& brandDark,
               const std::optional<QString>& defaultDark, ColorUtil::Appearance appearance) {
  return ColorUtil::effectiveAccent(brand, brandDark, QStringLiteral("#111111"), defaultDark,
                                    appearance);
}

}  // namespace

void checkColors(Report& report) {
  report.check(QStringLiteral("hex #4C6FFF round-trips"), writesBack("#4C6FFF", "#4C6FFF"));
  report.check(QStringLiteral("3-digit #FFF -> #FFFFFF"), writesBack("#FFF", "#FFFFFF"));
  report.check(QStringLiteral("8-digit alpha parses"),
               ColorUtil::nsColor(QStringLiteral("#4C6FFF80")).has_value());
  report.check(QStringLiteral("invalid hex returns nil"),
               !ColorUtil::nsColor(QStringLiteral("nope")).has_value());
  report.check(QStringLiteral("RGB variant format"),
               hasVariant("#FF0000", [](const FormatVariant& variant) {
                 return variant.value == QStringLiteral("rgb(255, 0, 0)");
               }));
}

void checkAccentResolution(Report& report) {
  using enum ColorUtil::Appearance;
  const QString brand = QStringLiteral("#222222"), brandDark = QStringLiteral("#333333");
  const QString defaultLight = QStringLiteral("#111111"), defaultDark = QStringLiteral("#444444");
  report.check(QStringLiteral("default light"), accent({}, {}, {}, light) == defaultLight);
  report.check(QStringLiteral("default has no dark → light"),
               accent({}, {}, {}, dark) == defaultLight);
  report.check(QStringLiteral("default dark variant used"),
               accent({}, {}, defaultDark, dark) == defaultDark);
  report.check(QStringLiteral("brand overrides default"),
               accent(brand, {}, defaultDark, light) == brand);
  report.check(QStringLiteral("brand no dark → brand light in dark"),
               accent(brand, {}, defaultDark, dark) == brand);
  report.check(QStringLiteral("brand dark variant used"),
               accent(brand, brandDark, defaultDark, dark) == brandDark);
}

void checkConversions(Report& report) {
  const auto white = ColorUtil::relativeLuminance(QStringLiteral("#FFFFFF"));
  const auto black = ColorUtil::relativeLuminance(QStringLiteral("#000000"));
  report.check(QStringLiteral("cmyk red = 0/100/100/0"),
               cmyk("#FF0000") == CMYKColor{0, 100, 100, 0});
  report.check(QStringLiteral("cmyk black k=100"), cmyk("#000000").value_or(CMYKColor{}).k == 100);
  report.check(QStringLiteral("cmyk white all 0"), cmyk("#FFFFFF") == CMYKColor{});
  report.check(QStringLiteral("contrast white/black = 21"),
               white && black && qRound(ColorUtil::contrastRatio(*white, *black)) == 21);
  report.check(QStringLiteral("wcag grade AAA"), ColorUtil::wcagGrade(7) == QStringLiteral("AAA"));
  report.check(QStringLiteral("wcag grade Fail"),
               ColorUtil::wcagGrade(2.99) == QStringLiteral("Fail"));
  report.check(QStringLiteral("cmyk copy variant present"),
               hasVariant("#FF0000", [](const FormatVariant& variant) {
                 return variant.label == QStringLiteral("CMYK");
               }));
}

void checkPalette(Report& report) {
  using PaletteExport::Format;
  const QList<PaletteExport::Entry> colors{
      {QStringLiteral("Brand Blue"), QStringLiteral("#123456"), std::nullopt},
      {QString(), QStringLiteral("#ABCDEF"), std::nullopt}};
  const QList<PaletteExport::Entry> twins{
      {QStringLiteral("Blue"), QStringLiteral("#0000FF"), std::nullopt},
      {QStringLiteral("Blue"), QStringLiteral("#0000EE"), std::nullopt}};
  const QString css = PaletteExport::format(colors, Format::cssVariables);
  const QString twinCss = PaletteExport::format(twins, Format::cssVariables);
  report.check(QStringLiteral("css variables format"),
               css.contains(QStringLiteral(":root {")) &&
                   css.contains(QStringLiteral("--brand-blue: #123456;")));
  report.check(QStringLiteral("css unnamed falls back to hex"),
               css.contains(QStringLiteral("#ABCDEF")));
  report.check(QStringLiteral("tailwind format"),
               PaletteExport::format(colors, Format::tailwind)
                   .contains(QStringLiteral("'brand-blue': '#123456'")));
  report.check(QStringLiteral("swiftui camelCase"),
               PaletteExport::format(colors, Format::swiftUI)
                   .contains(QStringLiteral("static let brandBlue = Color(hex: \"#123456\")")));
  report.check(
      QStringLiteral("palette de-dups slugs"),
      twinCss.contains(QStringLiteral("--blue:")) && twinCss.contains(QStringLiteral("--blue-2:")));
}

}  // namespace tarnloft::SelfTest
