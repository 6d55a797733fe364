#include "controls/theme/Theme.h"

#include "controls/buttons/ControlSize.h"
#include "controls/theme/Typography.h"

#include <QQmlEngine>

namespace tarnloft {

namespace {

constexpr QRgb defaultAccent = 0xff4c6fff;

struct Measures {
  int height, radius, text;
};

Measures measuresOf(int size) {
  switch (static_cast<ControlSize::Size>(size)) {
    case ControlSize::Size::Small: return {22, 5, 11};
    case ControlSize::Size::Large: return {34, 8, 13};
    case ControlSize::Size::Regular: break;
  }
  return {28, 6, 13};
}

}  // namespace

Theme::Theme(QObject* parent)
    : QObject(parent), palette_(Palette::make(scheme_, QColor(defaultAccent))) {}

Theme& Theme::of(QQmlEngine& engine) {
  if (auto* theme = engine.findChild<Theme*>(QString(), Qt::FindDirectChildrenOnly)) return *theme;
  return *new Theme(&engine);
}

Theme* Theme::create(QQmlEngine* engine, QJSEngine* /*scripts*/) { return &of(*engine); }

void Theme::setDark(bool dark) {
  renew(dark ? ColorScheme::dark : ColorScheme::light, palette_.accent);
}

void Theme::setAccent(const QColor& accent) {
  if (accent.isValid()) renew(scheme_, accent);
}

void Theme::renew(ColorScheme scheme, const QColor& accent) {
  if (scheme == scheme_ && accent == palette_.accent) return;
  scheme_ = scheme;
  palette_ = Palette::make(scheme, accent);
  emit changed();
}

QColor Theme::thin(const QColor& color, double opacity) {
  QColor result = color;
  result.setAlphaF(static_cast<float>(color.alphaF() * opacity));
  return result;
}

int Theme::controlHeight(int size) { return measuresOf(size).height; }
int Theme::controlRadius(int size) { return measuresOf(size).radius; }
int Theme::controlText(int size) { return measuresOf(size).text; }

QFont Theme::font(int pixelSize, int weight) {
  return interfaceFont(pixelSize, static_cast<QFont::Weight>(weight));
}

QFont Theme::emoji(int pixelSize) { return emojiFont(pixelSize); }

QFont Theme::monospaced(int pixelSize, int weight) {
  return monospacedFont(pixelSize, static_cast<QFont::Weight>(weight));
}

}  // namespace tarnloft
