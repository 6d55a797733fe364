#include "workspace/tiles/TileFacts.h"

#include "model/ShownText.h"

namespace tarnloft::TileFacts {
namespace {

using Kind = TileKind::Kind;

std::optional<QString> unlessEmpty(const QString& text) {
  return text.isEmpty() ? std::nullopt : std::optional(shownText(text));
}

QString variantCount(const LogoValue& logo) {
  const qsizetype count = logo.variants.size();
  return QStringLiteral("%1 variant%2")
      .arg(count)
      .arg(count == 1 ? QString() : QStringLiteral("s"));
}

std::optional<QString> fontSubcaption(const FontValue& font) {
  if (font.asset) return unlessEmpty(font.weight.value_or(QString()));
  const auto weight = unlessEmpty(font.weight.value_or(QString()));
  return weight ? *weight + QStringLiteral(" · name only") : QStringLiteral("Name only");
}

}  // namespace

Kind kind(const Item& item) { return Kind(item.payload.index()); }

bool isBlock(const Item& item) {
  return std::holds_alternative<HeaderPayload>(item.payload) ||
         std::holds_alternative<TextPayload>(item.payload);
}

std::optional<QString> subcaption(const Item& item) {
  using Text = std::optional<QString>;
  return std::visit(
      Overloaded{[](const ColorPayload& color) -> Text {
                   return color.value.name ? Text(shownText(color.value.hex).toUpper()) : Text();
                 },
                 [](const FontPayload& font) { return fontSubcaption(font.value); },
                 [](const CodePayload& code) { return unlessEmpty(code.value.language); },
                 [](const LogoPayload& logo) -> Text { return variantCount(logo.value); },
                 [](const auto&) -> Text { return std::nullopt; }},
      item.payload);
}

bool hasSubcaption(const Item& item) {
  return std::visit(
      Overloaded{[](const ColorPayload& color) { return color.value.name.has_value(); },
                 [](const FontPayload& font) {
                   return !font.value.asset || !font.value.weight.value_or(QString()).isEmpty();
                 },
                 [](const CodePayload& code) { return !code.value.language.isEmpty(); },
                 [](const LogoPayload&) { return true; }, [](const auto&) { return false; }},
      item.payload);
}

QString notesText(const Item& item) {
  const qsizetype count = item.usageNotes().size();
  const QString text = QStringLiteral("Usage & Notes…");
  return count == 0 ? text : text + QStringLiteral(" (%1)").arg(count);
}

QString helpText(const Item& item) {
  if (const auto* color = std::get_if<ColorPayload>(&item.payload)) {
    return QStringLiteral("Click to copy ") + shownText(color->value.hex).toUpper();
  }
  return kind(item) == Kind::Image ? QStringLiteral("Drag into another app to use") : QString();
}

QString accessibilityDescription(const Item& item) {
  const QString name = shownText(item.displayName());
  return std::visit(
      Overloaded{[](const HeaderPayload&) { return QString(); },
                 [](const TextPayload&) { return QString(); },
                 [&](const ColorPayload& color) {
                   return QStringLiteral("Color, %1, hex %2").arg(name, shownText(color.value.hex));
                 },
                 [&](const GradientPayload& gradient) {
                   return gradient.value.name ? QStringLiteral("Gradient, ") + name
                                              : QStringLiteral("Gradient");
                 },
                 [&](const ImagePayload&) { return QStringLiteral("Image, ") + name; },
                 [&](const VideoPayload&) { return QStringLiteral("Video, ") + name; },
                 [&](const FontPayload&) { return QStringLiteral("Type, ") + name; },
                 [&](const CodePayload&) { return QStringLiteral("Code snippet, ") + name; },
                 [&](const LogoPayload& logo) {
                   return QStringLiteral("Logo set, %1, %2").arg(name, variantCount(logo.value));
                 }},
      item.payload);
}

std::optional<AssetRef> picture(const Item& item) {
  const bool isPicture = kind(item) == Kind::Image || kind(item) == Kind::Logo;
  return isPicture ? item.exportableAsset() : std::nullopt;
}

Backdrop::Kind backdrop(const Item& item) {
  const auto* logo = std::get_if<LogoPayload>(&item.payload);
  if (!logo) return Backdrop::of(item.imageBackground);
  const auto primary = logo->value.primary();
  return Backdrop::of(primary ? primary->background : std::nullopt);
}

std::optional<QString> pictureName(const Item& item) {
  if (const auto* image = std::get_if<ImagePayload>(&item.payload)) {
    return image->name ? std::optional(shownText(*image->name)) : std::nullopt;
  }
  return shownText(item.displayName());
}

}  // namespace tarnloft::TileFacts
