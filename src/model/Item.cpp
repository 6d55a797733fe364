#include "model/Item.h"

#include "model/FileName.h"
#include "model/SearchText.h"

#include <algorithm>

namespace tarnloft {
namespace {

// The user's own name of the file without its extension; none if that leaves nothing.
std::optional<QString> assetBaseName(const AssetRef& asset) {
  const QString name = withoutPathExtension(asset.originalName);
  return name.isEmpty() ? std::nullopt : std::optional(name);
}

QString mediaName(const std::optional<QString>& name, const AssetRef& asset,
                  const QString& fallback) {
  return name ? *name : assetBaseName(asset).value_or(fallback);
}

QStringList furtherTokens(const ColorValue& color) {
  QStringList tokens{color.hex};
  if (color.spot) tokens << *color.spot;
  return tokens;
}

QStringList furtherTokens(const GradientValue& gradient) {
  QStringList tokens;
  for (const GradientStop& stop : gradient.stops) tokens << stop.hex;
  return tokens;
}

QStringList furtherTokens(const FontValue& font) {
  QStringList tokens{font.family};
  if (font.weight) tokens << *font.weight;
  return tokens;
}

QStringList furtherTokens(const LogoValue& logo) {
  QStringList tokens;
  for (const LogoVariant& variant : logo.variants) tokens << label(variant.role);
  for (const LogoVariant& variant : logo.variants) tokens << variant.asset.originalName;
  return tokens;
}

}  // namespace

Item Item::create(ItemPayload payload) {
  return {QUuid::createUuid(), std::move(payload), std::nullopt, std::nullopt};
}

QString Item::displayName() const {
  return std::visit(
      Overloaded{
          [](const HeaderPayload& header) { return header.text; },
          [](const TextPayload& text) { return text.body; },
          [](const ColorPayload& color) { return color.value.name.value_or(color.value.hex); },
          [](const GradientPayload& gradient) {
            return gradient.value.name.value_or(QStringLiteral("Gradient"));
          },
          [](const ImagePayload& image) {
            return mediaName(image.name, image.asset, QStringLiteral("Image"));
          },
          [](const VideoPayload& video) {
            return mediaName(video.name, video.asset, QStringLiteral("Video"));
          },
          [](const FontPayload& font) { return font.value.name.value_or(font.value.family); },
          [](const CodePayload& code) { return code.value.name.value_or(code.value.language); },
          [](const LogoPayload& logo) { return logo.value.name; },
      },
      payload);
}

QString Item::typeLabel() const {
  return std::visit(Overloaded{
                        [](const HeaderPayload&) { return QStringLiteral("Header"); },
                        [](const TextPayload&) { return QStringLiteral("Text"); },
                        [](const ColorPayload&) { return QStringLiteral("Color"); },
                        [](const GradientPayload&) { return QStringLiteral("Gradient"); },
                        [](const ImagePayload&) { return QStringLiteral("Image"); },
                        [](const VideoPayload&) { return QStringLiteral("Video"); },
                        [](const FontPayload&) { return QStringLiteral("Type"); },
                        [](const CodePayload&) { return QStringLiteral("Code"); },
                        [](const LogoPayload&) { return QStringLiteral("Logo"); },
                    },
                    payload);
}

std::optional<AssetRef> Item::exportableAsset() const {
  using Asset = std::optional<AssetRef>;
  return std::visit(Overloaded{
                        [](const ImagePayload& image) -> Asset { return image.asset; },
                        [](const VideoPayload& video) -> Asset { return video.asset; },
                        [](const FontPayload& font) -> Asset { return font.value.asset; },
                        [](const LogoPayload& logo) -> Asset {
                          const auto primary = logo.value.primary();
                          return primary ? Asset(primary->asset) : std::nullopt;
                        },
                        [](const auto&) -> Asset { return std::nullopt; },
                    },
                    payload);
}

QStringList Item::searchTokens() const {
  const QStringList further =
      std::visit(Overloaded{
                     [](const ColorPayload& color) { return furtherTokens(color.value); },
                     [](const GradientPayload& gradient) { return furtherTokens(gradient.value); },
                     [](const FontPayload& font) { return furtherTokens(font.value); },
                     [](const CodePayload& code) { return QStringList{code.value.language}; },
                     [](const LogoPayload& logo) { return furtherTokens(logo.value); },
                     [](const auto&) { return QStringList(); },
                 },
                 payload);
  return QStringList{displayName(), typeLabel()} + further;
}

bool Item::matchesSearch(const QString& query) const {
  if (query.isEmpty()) return false;
  const QStringList tokens = searchTokens();
  const QString folded = foldedForSearch(query);
  return std::any_of(tokens.begin(), tokens.end(),
                     [&](const QString& token) { return foldedForSearch(token).contains(folded); });
}

void Item::setUsageNotes(const QList<UsageNote>& value) {
  if (value.isEmpty()) {
    notes.reset();
  } else {
    notes = value;
  }
}

}  // namespace tarnloft
