#pragma once

#include "model/FileName.h"
#include "model/ItemPayload.h"
#include "model/RecordFields.h"

#include <concepts>

// Which texts an item shows and is found by: one set of rules for a payload in memory and for one
// that stands in a parsed document. Each text goes to `use`, as a QString or as UTF-8.
namespace tarnloft {

template <Record R>
class RecordView;

// The record itself, or the place of one in a document.
template <class Source, class R>
concept FormOf = std::same_as<Source, R> || std::same_as<Source, RecordView<R>>;

template <auto Member, Record R>
const auto& fieldOf(const R& record) {
  return record.*Member;
}

template <auto Member, Record R>
auto valueOf(const R& record) {
  return record.*Member;
}

// The kinds' words, in the order of the payload's cases.
inline constexpr std::array<std::string_view, std::variant_size_v<ItemPayload>> typeLabels{
    "Header", "Text", "Color", "Gradient", "Image", "Video", "Type", "Code", "Logo"};

namespace itemtexts {

template <class Text, class Use>
void useEither(const std::optional<Text>& name, const auto& otherwise, Use& use) {
  if (name) {
    use(*name);
  } else {
    use(otherwise);
  }
}

// Without a name, that of the user's file, if it has one besides its extension.
template <class Text, class Use>
void useMediaName(const std::optional<Text>& name, const FormOf<AssetRef> auto& asset,
                  std::string_view fallback, Use& use) {
  if (name) return use(*name);
  const Text base = withoutPathExtension(fieldOf<&AssetRef::originalName>(asset));
  if (base.size() > 0) return use(base);
  use(fallback);
}

}  // namespace itemtexts

// The name shown on the tile.
template <class Use>
void useName(const FormOf<HeaderPayload> auto& header, Use&& use) {
  use(fieldOf<&HeaderPayload::text>(header));
}
template <class Use>
void useName(const FormOf<TextPayload> auto& text, Use&& use) {
  use(fieldOf<&TextPayload::body>(text));
}
template <class Use>
void useName(const FormOf<ColorPayload> auto& payload, Use&& use) {
  const auto& color = fieldOf<&ColorPayload::value>(payload);
  itemtexts::useEither(fieldOf<&ColorValue::name>(color), fieldOf<&ColorValue::hex>(color), use);
}
template <class Use>
void useName(const FormOf<GradientPayload> auto& payload, Use&& use) {
  const auto& gradient = fieldOf<&GradientPayload::value>(payload);
  itemtexts::useEither(fieldOf<&GradientValue::name>(gradient), std::string_view("Gradient"), use);
}
template <class Use>
void useName(const FormOf<ImagePayload> auto& image, Use&& use) {
  itemtexts::useMediaName(fieldOf<&ImagePayload::name>(image), fieldOf<&ImagePayload::asset>(image),
                          "Image", use);
}
template <class Use>
void useName(const FormOf<VideoPayload> auto& video, Use&& use) {
  itemtexts::useMediaName(fieldOf<&VideoPayload::name>(video), fieldOf<&VideoPayload::asset>(video),
                          "Video", use);
}
template <class Use>
void useName(const FormOf<FontPayload> auto& payload, Use&& use) {
  const auto& font = fieldOf<&FontPayload::value>(payload);
  itemtexts::useEither(fieldOf<&FontValue::name>(font), fieldOf<&FontValue::family>(font), use);
}
template <class Use>
void useName(const FormOf<CodePayload> auto& payload, Use&& use) {
  const auto& code = fieldOf<&CodePayload::value>(payload);
  itemtexts::useEither(fieldOf<&CodeValue::name>(code), fieldOf<&CodeValue::language>(code), use);
}
template <class Use>
void useName(const FormOf<LogoPayload> auto& payload, Use&& use) {
  use(fieldOf<&LogoValue::name>(fieldOf<&LogoPayload::value>(payload)));
}

// What a search looks at behind the name and the kind's word; most kinds have nothing more.
template <class Use>
void useFurtherTokens(const auto&, Use&&) {}
template <class Use>
void useFurtherTokens(const FormOf<ColorPayload> auto& payload, Use&& use) {
  const auto& color = fieldOf<&ColorPayload::value>(payload);
  use(fieldOf<&ColorValue::hex>(color));
  if (const auto& spot = fieldOf<&ColorValue::spot>(color)) use(*spot);
}
template <class Use>
void useFurtherTokens(const FormOf<GradientPayload> auto& payload, Use&& use) {
  const auto& gradient = fieldOf<&GradientPayload::value>(payload);
  for (const auto& stop : fieldOf<&GradientValue::stops>(gradient)) {
    use(fieldOf<&GradientStop::hex>(stop));
  }
}
template <class Use>
void useFurtherTokens(const FormOf<FontPayload> auto& payload, Use&& use) {
  const auto& font = fieldOf<&FontPayload::value>(payload);
  use(fieldOf<&FontValue::family>(font));
  if (const auto& weight = fieldOf<&FontValue::weight>(font)) use(*weight);
}
template <class Use>
void useFurtherTokens(const FormOf<CodePayload> auto& payload, Use&& use) {
  use(fieldOf<&CodeValue::language>(fieldOf<&CodePayload::value>(payload)));
}
template <class Use>
void useFurtherTokens(const FormOf<LogoPayload> auto& payload, Use&& use) {
  const auto& variants = fieldOf<&LogoValue::variants>(fieldOf<&LogoPayload::value>(payload));
  for (const auto& variant : variants) use(label(fieldOf<&LogoVariant::role>(variant)));
  for (const auto& variant : variants) {
    use(fieldOf<&AssetRef::originalName>(fieldOf<&LogoVariant::asset>(variant)));
  }
}

}  // namespace tarnloft
