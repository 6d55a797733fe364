#include "workspace/tiles/facets/ColorFacet.h"

#include "model/ShownText.h"
#include "pictures/HexColor.h"
#include "workspace/BrandWorkspace.h"

namespace tarnloft {

QColor ColorFacet::color() const { return shownColor(payload<ColorPayload>().value.hex); }

QString ColorFacet::ink() const {
  switch (ColorUtil::contrastingText(payload<ColorPayload>().value.hex)) {
    case TextColor::black: return QStringLiteral("black");
    case TextColor::white: return QStringLiteral("white");
    case TextColor::primary: break;
  }
  return {};
}

QString ColorFacet::title() const {
  const ColorValue& value = payload<ColorPayload>().value;
  return shownText(value.name && !value.name->isEmpty() ? *value.name : value.hex);
}

QStringList ColorFacet::lines() const {
  const ColorValue& value = payload<ColorPayload>().value;
  QStringList lines;
  if (value.name && !value.name->isEmpty()) lines << shownText(value.hex).toUpper();
  for (const FormatVariant& variant : ColorUtil::formatVariants(value.hex)) {
    if (variant.label == QLatin1String("RGB") || variant.label == QLatin1String("CMYK"))
      lines << variant.value;
  }
  return lines;
}

QString ColorFacet::spot() const {
  return shownText(payload<ColorPayload>().value.spot.value_or(QString()));
}

QString ColorFacet::badge() const {
  return ColorUtil::wcagBadge(payload<ColorPayload>().value.hex).value_or(QString());
}

void ColorFacet::clicked() { workspace().commands().copyColor(payload<ColorPayload>().value.hex); }

}  // namespace tarnloft
